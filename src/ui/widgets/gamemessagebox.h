#pragma once

#include <QMessageBox>

#include "core/port.h"

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
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void Arrange();
    void TakeSize();

    bool mustAnswer;
};

} // namespace torvenhall
