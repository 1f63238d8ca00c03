#include "ui/widgets/activitywindow.h"

#include <QPointer>

#include <utility>

#include "game/entry.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{
constexpr double Padding = 7;
constexpr double CaptionHeight = 19;
constexpr double AboveStrip = 8;
constexpr double BesideBack = 10;
} // namespace

ActivityWindow::ActivityWindow(const Plan& plan, QWidget* parent)
    : GameWindow(plan.name, plan.width, plan.height, parent), pictureKey(plan.pictureKey),
      height(plan.height)
{
    setWindowTitle(plan.caption);
    setWindowModality(Qt::WindowModal);
    const QRectF place(Margin, height - Margin - Strip::Height,
                       plan.width - 2 * Margin - BackWidth - BesideBack, Strip::Height);
    Surface().AddPanel(place, Scene::Panel::Deep);
    strip = new Strip(place.width(), plan.learning, &Surface());
    Place(*strip, place);
}

void ActivityWindow::Load()
{
    RefreshChoices();
    Surface().LoadBackground(pictureKey);
}

void ActivityWindow::AddChoices(const List& list, const std::vector<Row>& rows)
{
    const double count = static_cast<double>(rows.size());
    const double head = list.caption.isEmpty() ? Padding : Padding / 2 + CaptionHeight;
    const double panelHeight = head + count * (list.rowHeight + list.gap) - list.gap + Padding;
    const double bottom = height - Margin - Strip::Height - AboveStrip;
    const QRectF panel(Margin, bottom - panelHeight, list.width, panelHeight);
    Surface().AddPanel(panel);
    if (!list.caption.isEmpty()) {
        AddLabel(list.captionName, list.caption,
                 {panel.left() + Padding + 2, panel.top() + 2, list.width - 2 * Padding - 2,
                  CaptionHeight},
                 TextType(13, true))
            ->SetColour(colour::Warm);
    }
    QRectF place(panel.left() + Padding, panel.top() + head, list.width - 2 * Padding,
                 list.rowHeight);
    for (const Row& row : rows) {
        Dress(AddChoice(row, place), list.type);
        place.translate(0, list.rowHeight + list.gap);
    }
}

ChoiceButton& ActivityWindow::AddChoice(const Row& row, const QRectF& place)
{
    auto* button = new ChoiceButton(row.name, row.caption, &Surface());
    Place(*button, place);
    button->SetGlyph(row.glyph);
    const std::size_t index = choices.size();
    button->OnAttention([this, index](bool turnedTo) {
        if (turnedTo || attended == index) {
            attended = turnedTo ? index : Nobody;
            Foresee();
        }
    });
    choices.push_back(button);
    return *button;
}

void ActivityWindow::SetDeed(std::size_t index, std::function<void()> deed)
{
    connect(choices[index], &QAbstractButton::clicked, this, [this, index, deed = std::move(deed)] {
        const QPointer<ChoiceButton> row = choices[index];
        const bool granted = !row->IsMuted();
        EnterRules(deed);
        if (row && granted) {
            row->LightUp();
        }
    });
}

/// The toolkit moves the focus on from a button that is disabled, beneath a box
/// too, where the window's own focus is not the application's.
void ActivityWindow::RefreshChoices()
{
    refreshDue = false;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const Standing standing = StandingOf(i);
        choices[i]->SetBadge(standing.badge);
        choices[i]->Explain(standing.explanation);
    }
    Foresee();
}

void ActivityWindow::Foresee()
{
    strip->Foresee(attended < choices.size() ? StandingOf(attended).effects
                                             : std::vector<Effect>{});
}

/// Some labels are shown before their fields are stored.
void ActivityWindow::RefreshSoon()
{
    if (!std::exchange(refreshDue, true)) {
        QMetaObject::invokeMethod(
            this, [this] { RefreshChoices(); }, Qt::QueuedConnection);
    }
}

void ActivityWindow::LabelChanged(Label label)
{
    strip->LabelChanged(label);
    if (label != Label::lblTime && label != Label::lblMessage) {
        RefreshSoon();
    }
}

} // namespace torvenhall
