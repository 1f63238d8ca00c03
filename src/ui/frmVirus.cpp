#include "ui/frmVirus.h"

#include <QPointer>
#include <QScopeGuard>

#include "activities/virus.h"
#include "core/GameState.h"
#include "game/entry.h"
#include "system/convert.h"
#include "ui/widgets/pictures.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{
constexpr double Width = 400;
constexpr double Height = 300;

/// The virus, as large as its place.
class Portrait : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void resizeEvent(QResizeEvent*) override
    {
        setPixmap(LoadPicture("VIRUSPICTURE", size(), devicePixelRatioF()));
    }
};

} // namespace

frmVirus::frmVirus(QWidget* parent) : GameWindow("frmVirus", Width, Height, parent)
{
    setWindowTitle("Внимание! Вирус!");
    setWindowModality(Qt::ApplicationModal);

    auto* picture = new Portrait(&Surface());
    picture->setObjectName("Image1");
    picture->setScaledContents(true);
    Place(*picture, {0, 0, Width, Height});
    auto* panel = new Card(&Surface());
    Place(*panel, {12, Height - 68 - 10, Width - 24, 68});

    GameLabel* text = AddLabel("Label1", "На Вашем компьютере обнаружен злой вирус!",
                               {24, Height - 75, Width - 48, 24}, TextType(15, true));
    text->setAlignment(Qt::AlignCenter);
    text->SetColour(colour::LightCyan);
    GameButton* kill = AddButton("Command1", "Убить антивирусником", {24, Height - 47, 172, 30});
    GameButton* release = AddButton("Command2", "Отпустить на волю", {204, Height - 47, 172, 30});
    for (GameButton* each : {kill, release}) {
        each->SetEnterPresses(false);
    }
    const QString loss = "$" + Text(DecimalOf(VirusLoss()));
    kill->Explain(GameState.SoftAntivirus <= 0
                      ? "Антивируса нет: вирус сожрёт " + loss
                      : "Как повезёт: вирус будет убит или сожрёт " + loss);
    release->Explain("Вирус сожрёт " + loss);
    connect(kill, &QAbstractButton::clicked, this, [this] { Answer(FightVirus); });
    connect(release, &QAbstractButton::clicked, this, [this] { Answer(ReleaseVirus); });
}

void frmVirus::Answer(void (*deed)())
{
    // Pressed once: while the outcome's box is open the window waits behind it.
    EnterRules([deed, window = QPointer<QDialog>(this)] {
        // However it ends. What waits for the window goes on after this routine.
        const auto close = qScopeGuard([&] {
            if (window) {
                window->done(QDialog::Accepted);
            }
        });
        deed();
    });
}

} // namespace torvenhall
