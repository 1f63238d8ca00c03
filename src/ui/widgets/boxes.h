#pragma once

#include <QMessageBox>

#include "core/port.h"
#include "ui/widgets/gamewindow.h"

class QLineEdit;

namespace torvenhall
{

/// A message box of the game. One with two buttons must be answered: it takes
/// neither Esc nor its close box.
class GameMessageBox : public QMessageBox
{
public:
    GameMessageBox(const MessageBox& box, QWidget* parent);

    /// The answer of the button that was pressed.
    Answer PressedAnswer() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void WidenForTitle();

    bool mustAnswer;
};

/// The text-input box.
class InputWindow : public GameWindow
{
public:
    InputWindow(const QString& prompt, const QString& title, QWidget* parent);
    QString EnteredText() const;

private:
    QLineEdit* entry;
};

} // namespace torvenhall
