#pragma once

#include <QDialog>
#include <QRectF>

#include <functional>

#include "core/labels.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/quietlife.h"
#include "ui/widgets/scene.h"

namespace torvenhall
{

/// A window beside the main one: a fixed size, a scene, and controls placed
/// in units.
class GameWindow : public QDialog
{
public:
    /// Size in units. The window's control name is also its class's.
    GameWindow(const QString& name, double width, double height, QWidget* parent);

    /// The window's load routine: what it shows is derived from the game anew.
    virtual void Load() {}
    /// What a main-window label shows has changed (core/shown.h).
    virtual void LabelChanged(Label /*label*/) {}
    /// Enables or disables a control. The focus of a disabled one waits on
    /// "Назад": the toolkit would hand it to the next button, and one stroke
    /// too many would press that.
    void SetUsable(QWidget& control, bool usable);

protected:
    // Where "Назад" stands, in units.
    static constexpr double Margin = 14;
    static constexpr double BackWidth = 104;
    static constexpr double BackHeight = 36;

    /// Whether the window takes Esc and its close box; what they mean is
    /// `reject`.
    virtual bool Closable() const { return true; }
    Scene& Surface() { return *scene; }
    GameLabel* AddLabel(const QString& name, const QString& text, const QRectF& place,
                        const Type& type);
    GameButton* AddButton(const QString& name, const QString& caption, const QRectF& place);
    /// The slogan as a sign of the place, at its upper left corner: two labels
    /// of the same text, the second one the letters' shadow.
    void AddSlogan(const QString& name, const QString& shadowName, const QString& text,
                   Sign sign = Sign::Neon, double height = 23);
    /// A heading, drawn by two labels of the same text, the second one its
    /// shadow.
    void AddHeading(const QString& name, const QString& shadowName, const QString& text,
                    const QRectF& place, double height);
    /// "Назад" in its usual corner: bottom right.
    GameButton* AddBack(const QString& name, const QString& caption = "Назад");

    /// Tab goes through these in order.
    static void TabThrough(std::initializer_list<QWidget*> order);

    void reject() override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    GameButton* back = nullptr;
    QuietLife* quietLife = nullptr; ///< once something in the picture moves
    const QWidget* focusTakenFrom = nullptr;
    Scene* scene;
    double widthUnits, heightUnits;
};

} // namespace torvenhall
