#pragma once

#include <QColor>
#include <QLabel>

#include "core/labels.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

/// A text over a picture: plain, in its own colour on every theme, condensed
/// when it is too long for its place and cut, with a tooltip, only when that
/// is not enough. A wrapping label uses a smaller font instead.
class GameLabel : public QLabel
{
public:
    GameLabel(const QString& controlName, const Type& type, QWidget* parent);

    void SetColour(const QColor& colour);
    QColor Colour() const { return colour; }
    /// Sets the text unless it is shown already.
    void ShowText(const QString& text);
    /// Shows what a label of the main window shows, in its colour.
    virtual void ShowLabel(Label label);
    /// The caption that a screen reader says before the text.
    void SetSpokenCaption(const QString& caption);
    /// Whether the whole text is on screen.
    bool TextFits() const;
    /// Hovering always shows the whole text, not only when it is cut.
    void ShowOnHover() { hovers = true; }
    /// A new text is lit up for a moment.
    void FlashChanges() { flashes = true; }

    QSize minimumSizeHint() const override { return {}; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// The largest font, down to a readable one, in which a wrapped text fits.
    QFont WrappedFont(bool* fits = nullptr) const;

private:
    void Flash();
    void PaintWarning(QPainter& painter) const;

    QColor colour;
    QString spokenCaption;
    bool hovers = false;
    bool flashes = false;
    bool lit = false;
};

} // namespace torvenhall
