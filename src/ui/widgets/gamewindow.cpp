#include "ui/widgets/gamewindow.h"

#include <QCloseEvent>

#include <algorithm>

#include "ui/widgets/helpkey.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

GameWindow::GameWindow(const QString& name, double width, double height, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      scene(new Scene(width, height, this)), widthUnits(width), heightUnits(height)
{
    setObjectName(name);
    Place(*this, {0, 0, width, height});
    setSizeGripEnabled(false);
    OpenManualByKey(this);
    ChangeScaleByKeys(this);
}

GameLabel* GameWindow::AddLabel(const QString& name, const QString& text, const QRectF& place,
                                const Type& type)
{
    auto* label = new GameLabel(name, type, scene);
    Place(*label, place);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->ShowText(text);
    return label;
}

GameButton* GameWindow::AddButton(const QString& name, const QString& caption, const QRectF& place)
{
    auto* button = new GameButton(name, caption, scene);
    Place(*button, place);
    return button;
}

void GameWindow::AddSlogan(const QString& name, const QString& shadowName, const QString& text,
                           Sign sign, double height)
{
    constexpr double padding = 16;
    const double width = std::min(SignWidth(text, height), widthUnits - 2 * Margin);
    const QRectF plate(Margin, 12, width, height + 15);
    scene->AddSign(plate, sign);
    const Type type = TextType(height, true);
    const QRectF place = plate.adjusted(padding, 2, -padding / 2, -2);
    const auto add = [&](const QString& label, SignLabel::Part part, const QRectF& at) {
        auto* made = new SignLabel(label, sign, part, type, scene);
        Place(*made, at);
        made->ShowText(text);
    };
    add(shadowName, SignLabel::Part::Shadow, place.translated(1.2, 1.4));
    add(name, SignLabel::Part::Letters, place);
}

void GameWindow::AddHeading(const QString& name, const QString& shadowName, const QString& text,
                            const QRectF& place, double height)
{
    AddLabel(shadowName, text, place.translated(1.2, 1.4), TextType(height, true))
        ->SetColour(QColor(0, 0, 0, 210));
    AddLabel(name, text, place, TextType(height, true))->SetColour(colour::LightCyan);
}

GameButton* GameWindow::AddBack(const QString& name, const QString& caption)
{
    back = AddButton(name, caption,
                     {widthUnits - Margin - BackWidth, heightUnits - Margin - BackHeight, BackWidth,
                      BackHeight});
    back->SetGlyph(Glyph::Back);
    connect(back, &QAbstractButton::clicked, this, &GameWindow::reject);
    return back;
}

void GameWindow::SetUsable(QWidget& control, bool usable)
{
    // Beneath a box nothing has the focus; what will have it again counts.
    if (!usable && back && focusWidget() == &control) {
        back->setFocus();
        focusTakenFrom = &control;
    }
    control.setEnabled(usable);
    if (usable && focusTakenFrom == &control) {
        focusTakenFrom = nullptr;
        if (back->hasFocus()) {
            control.setFocus();
        }
    }
}

void GameWindow::TabThrough(std::initializer_list<QWidget*> order)
{
    for (auto each = order.begin(); each + 1 < order.end(); ++each) {
        setTabOrder(each[0], each[1]);
    }
}

void GameWindow::reject()
{
    if (Closable()) {
        QDialog::reject();
    }
}

void GameWindow::closeEvent(QCloseEvent* event)
{
    // The default would hide the window behind the back of `reject`.
    reject();
    event->setAccepted(!isVisible());
}

void GameWindow::showEvent(QShowEvent* event)
{
    if (scene->Moves() && !quietLife) {
        quietLife = new QuietLife(this, [this] { scene->Step(); });
    }
    QDialog::showEvent(event);
    if (QWidget* first = focusWidget(); !first) {
        focusNextChild();
    }
}

} // namespace torvenhall
