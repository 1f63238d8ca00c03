#pragma once

#include <QObject>

#include "app/action.h"
#include "core/random.h"

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace torvenhall
{

/// Writes down what the player does to this game's windows.
class Recorder final : public QObject
{
public:
    Recorder(Journal& newJournal, const SteppedClock& newClock);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The window's own filter: the toolkit sends the same event when a dialog
    /// ends by itself, but does not let it through to here.
    class CloseBoxes final : public QObject
    {
    public:
        explicit CloseBoxes(Recorder& newOwner) : owner(newOwner) {}
        bool eventFilter(QObject* watched, QEvent* event) override;

    private:
        Recorder& owner;
    };

    void Shown(QWidget& widget);
    void Pressed(QWidget& widget, const QMouseEvent& event);
    void Released(QWidget& widget, const QMouseEvent& event);
    void Key(const QObject& window, const QKeyEvent& event);
    void Write(const Action& action) { journal.Write(action, clock); }

    Journal& journal;
    const SteppedClock& clock;
    CloseBoxes closeBoxes;
    bool titlePressed = false;
};

/// The name by which an action calls a control: its own, or else its caption.
QString ControlName(const QWidget& control);

/// A game that is recorded: a clock and dice that can be had again, and the
/// file. The saved games and kept lives that there are stand in
/// it too.
class Recording
{
public:
    explicit Recording(const QString& path);
    /// Why the file cannot be written, or nothing.
    QString Trouble() const { return journal.Trouble(); }
    /// Begins, once the folders are known; the dice start with this.
    void Begin(quint64 seed);

    SteppedClock clock;
    ReplayableDice dice;

private:
    void Embed(const char* deed, const std::string& name, const std::string& path);

    Journal journal;
    Recorder recorder;
};

} // namespace torvenhall
