#pragma once

#include <functional>

#include "ui/widgets/badge.h"
#include "ui/widgets/caption.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/motion.h"

namespace torvenhall
{

/// A row of a place's list: what it is as a glyph, the caption with gain, loss
/// and price in their own colours, and a badge for what is special about it.
/// Enter does not press it.
class ChoiceButton : public GameButton
{
public:
    ChoiceButton(const QString& controlName, const QString& caption, QWidget* parent);

    /// The sums in the caption are what one is paid.
    void ShowWages() { wages = true; }
    void SetBadge(Badge newBadge);
    /// Lights up for a moment: it is done.
    void LightUp();
    /// Is told when the player turns to this row by mouse or keyboard, and away.
    void OnAttention(std::function<void(bool)> heard) { attention = std::move(heard); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    QRectF TextPlace() const override;
    /// Beside the row: the others are to be read, too.
    QPoint TipPlace() const override;

private:
    void PaintPresent(QPainter& painter) const;
    void PaintGlow(QPainter& painter) const;
    void PaintCaption(QPainter& painter) const;
    QColor InkOf(Tone tone) const;
    void TellAttention(bool attended);

    bool wages = false;
    Badge badge = Badge::None;
    Motion glow;
    std::function<void(bool)> attention;
};

} // namespace torvenhall
