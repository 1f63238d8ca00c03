#include "ui/widgets/activitywindow.h"

#include "ui/widgets/metrics.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{
constexpr double StripHeight = 30;
constexpr double ChoiceHeight = 27;
constexpr double ChoiceGap = 4;
constexpr double PanelPadding = 10;
constexpr double CaptionHeight = 20;
} // namespace

ActivityWindow::ActivityWindow(const Plan& plan, QWidget* parent)
    : GameWindow(plan.name, plan.width, plan.height, parent), pictureKey(plan.pictureKey),
      width(plan.width), height(plan.height)
{
    setWindowTitle(plan.caption);
    setWindowModality(Qt::WindowModal);
    AddStrip();
}

void ActivityWindow::Load()
{
    RefreshChoices();
    Surface().LoadBackground(pictureKey);
}

void ActivityWindow::AddChoices(const Group& group,
                                const std::vector<std::pair<QString, QString>>& namedCaptions)
{
    const int count = static_cast<int>(namedCaptions.size());
    const int rows = (count + group.columns - 1) / group.columns;
    const double captionHeight = group.caption.isEmpty() ? 0 : CaptionHeight;
    const double panelHeight =
        2 * PanelPadding - 2 + captionHeight + rows * ChoiceHeight + (rows - 1) * ChoiceGap;
    const double bottom = height - Margin - StripHeight - 8;
    const QRectF panel(Margin, bottom - panelHeight, group.width, panelHeight);
    Surface().AddPanel(panel);

    const QRectF inside =
        panel.adjusted(PanelPadding, PanelPadding - 2, -PanelPadding, -PanelPadding);
    if (!group.caption.isEmpty()) {
        AddLabel(group.captionName, group.caption,
                 {inside.left() + 1, inside.top() - 1, inside.width(), CaptionHeight - 2},
                 TextType(13, true))
            ->SetColour(colour::Warm);
    }
    const double column = (inside.width() - (group.columns - 1) * ChoiceGap) / group.columns;
    for (int i = 0; i < count; ++i) {
        const int right = i / rows, down = i % rows;
        const double left = inside.left() + right * (column + ChoiceGap);
        const double top = inside.top() + captionHeight + down * (ChoiceHeight + ChoiceGap);
        const auto& [name, caption] = namedCaptions[static_cast<std::size_t>(i)];
        GameButton* button = AddButton(name, caption, {left, top, column, ChoiceHeight});
        button->SetAlignment(Qt::AlignLeft);
        button->SetEnterPresses(false);
        choices.push_back(button);
    }
}

void ActivityWindow::AddStrip()
{
    const double stripWidth = width - 2 * Margin - BackWidth - 10;
    Surface().AddPanel({Margin, height - Margin - StripHeight, stripWidth, StripHeight},
                       Scene::Panel::Deep);
    AddStripItem(0, "Бюджет", Label::lblMoney);
    AddStripItem(1, "Настроение", Label::lblHappy);
    AddStripItem(2, "Сытость", Label::lblEat);
    AddStripItem(3, "Здоровье", Label::lblHealth);
}

void ActivityWindow::AddStripItem(int index, const QString& caption, Label label)
{
    const double stripWidth = width - 2 * Margin - BackWidth - 10;
    const double item = (stripWidth - 12) / 4;
    const double left = Margin + 10 + index * item;
    const double top = height - Margin - StripHeight;
    AddLabel({}, caption, {left, top + 1, item - 8, 14}, TextType(9.5))->SetColour(colour::Caption);
    GameLabel* value = AddLabel({}, {}, {left, top + 13, item - 8, 15}, TextType(12.5, true));
    value->SetSpokenCaption(caption);
    if (label == Label::lblMoney) {
        value->FlashChanges();
    }
    strip.emplace_back(label, value);
    value->ShowLabel(label);
}

void ActivityWindow::LabelChanged(Label label)
{
    for (const auto& [shown, value] : strip) {
        if (shown == label) {
            value->ShowLabel(label);
        }
    }
    if (label == Label::lblMoney) {
        RefreshChoices();
    }
}

} // namespace torvenhall
