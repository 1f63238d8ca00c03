#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class QWidget;

namespace torvenhall
{

/// Nothing moves by itself, and what a click changes is there at once: asked
/// for by `--still`, or by a desktop that wants less motion.
bool StillLife();
void SetStillLife(bool still);
/// Whether the desktop's own settings ask for less motion.
bool DesktopIsStill();

/// The small motions of a window: a step four times a second while the window
/// is the active one, the game is not paused and the machine does not run on
/// its battery; otherwise no timer runs.
class QuietLife : public QObject
{
public:
    QuietLife(QWidget* window, std::function<void()> newStep);

    void SetPaused(bool newPaused);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Decide();

    std::function<void()> step;
    QWidget* window;
    QTimer timer;
    bool paused = false;
};

} // namespace torvenhall
