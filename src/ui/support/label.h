#pragma once

#include <QColor>
#include <QLabel>

namespace torvenhall
{

/// A text over a picture: plain, in its own colour on every theme, condensed
/// when it is too long for its place and cut, with a tooltip, only when that
/// is not enough. A wrapping label uses a smaller font instead.
class GameLabel : public QLabel
{
public:
    GameLabel(const QString& controlName, const QFont& font, QWidget* parent);

    void SetColour(const QColor& colour);
    QColor Colour() const { return colour; }
    /// Sets the text unless it is shown already.
    void ShowText(const QString& text);
    /// The caption that a screen reader says before the text.
    void SetSpokenCaption(const QString& caption);
    /// Whether the whole text is on screen.
    bool TextFits() const;

    QSize minimumSizeHint() const override { return {}; }

protected:
    void paintEvent(QPaintEvent* event) override;

    /// The largest font, down to a readable one, in which a wrapped text fits.
    QFont WrappedFont(bool* fits = nullptr) const;

private:
    QColor colour;
    QString spokenCaption;
};

/// The message line: a terminal with a block cursor behind what is typed.
class TerminalLabel : public GameLabel
{
public:
    using GameLabel::GameLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace torvenhall
