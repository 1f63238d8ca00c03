#pragma once

#include <QPushButton>
#include <QSize>

#include "ui/widgets/glyphs.h"

namespace torvenhall
{

/// The game's own button: distinct when normal, hovered, pressed, focused,
/// disabled and muted. Never a dialog's default button.
class GameButton : public QPushButton
{
public:
    GameButton(const QString& controlName, const QString& caption, QWidget* parent);

    void SetGlyph(Glyph newGlyph);
    void SetAlignment(Qt::Alignment newAlignment) { alignment = newAlignment; }
    /// Looks like what the window is there for.
    void SetPrimary(bool newPrimary = true);
    /// Draws the glyph above the caption.
    void Stack();
    /// Looks out of reach (the money does not suffice) but can be clicked.
    void SetMuted(bool newMuted);
    bool IsMuted() const { return muted; }
    /// Whether Enter presses the focused button as Space does. Off for a
    /// button that costs money: Enter closes boxes, and one stroke too many
    /// would buy.
    void SetEnterPresses(bool presses) { enterPresses = presses; }
    /// Sets the caption unless it is shown already.
    void ShowText(const QString& caption);
    /// What the tooltip and a screen reader say of it.
    void Explain(const QString& newExplanation);
    /// Whether the whole caption is on screen.
    /// Where the explanation appears, its upper left corner: beneath the button.
    virtual QPoint TipPlace() const;
    QSize TipSize() const { return tipSize; }
    bool TextFits() const;

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Where the caption has room.
    virtual QRectF TextPlace() const;
    void PaintGround(QPainter& painter) const;
    QColor Ink() const;
    Glyph Sign() const { return glyph; }

private:
    void RefreshTip();
    void Hover(GameButton* button);
    void PaintStacked(QPainter& painter) const;

    Glyph glyph = Glyph::None;
    Qt::Alignment alignment = Qt::AlignCenter;
    QSize tipSize;
    QString explanation;
    bool muted = false;
    bool primary = false;
    bool stacked = false;
    bool enterPresses = true;
};

} // namespace torvenhall
