#include "support/play.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include "core/remembered.h"
#include "core/waits.h"
#include "game/cheats.h"
#include "game/newgame.h"
#include "savegame/savegame.h"
#include "system/basSystem.h"
#include "ui/frmLang.h"
#include "ui/windows.h"

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace torvenhall::test
{

Player::Player()
{
    now = this;
    qApp->installEventFilter(this);
}

Player::~Player()
{
    for (const auto& [dialog, queued] : reactions) {
        EXPECT_TRUE(queued.empty()) << dialog.toStdString() << " was expected and never opened";
    }
}

bool Player::eventFilter(QObject* watched, QEvent* event)
{
    static const QStringList waiting{"MessageBox", "InputBox", "frmPlayerName", "frmLocGame",
                                     "frmVirus"};
    if (event->type() == QEvent::Show && waiting.contains(watched->objectName())) {
        if (const auto* box = qobject_cast<QMessageBox*>(watched)) {
            boxes << box->windowTitle() + ": " + box->text();
        }
        opened << (reacts ? qobject_cast<QWidget*>(watched) : nullptr);
    }
    return event->type() == QEvent::Timer && watched->objectName() == "tmrTime";
}

bool Player::Reacts()
{
    if (opened.empty()) {
        return false;
    }
    const QPointer<QWidget> dialog = opened.takeFirst();
    if (dialog && dialog->isVisible()) {
        auto& queued = reactions[dialog->objectName()];
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        const bool tells = box && box->buttons().size() == 1;
        EXPECT_TRUE(tells || !queued.empty()) << dialog->windowTitle().toStdString();
        queued.empty() ? tells ? Say("OK") : delete dialog : queued.takeFirst()();
    }
    return true;
}

void Player::NextLifeIs(const QString& name, int level)
{
    When("frmPlayerName", [name, level] {
        Type(Control<QLineEdit>("frmPlayerName", "Text1"), name);
        Control<QComboBox>("frmPlayerName", "Combo1").setCurrentIndex(level);
        Click("frmPlayerName", "Command1");
    });
}

void Player::SavesAs(const QString& name)
{
    When("frmLocGame", [name] {
        Type(Control<QLineEdit>("frmLocGame", "Text1"), name);
        Click("frmLocGame", "Command1");
    });
}

void Screen::Settle()
{
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (Player::now->Reacts());
}

bool Screen::Until(const std::function<bool()>& holds)
{
    return QTest::qWaitFor([&holds] { return Settle(), holds(); }, 10000);
}

QMultiMap<QString, QWidget*> Screen::Visible()
{
    QMultiMap<QString, QWidget*> visible;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        each->isVisible() ? void(visible.insert(each->objectName(), each)) : void();
    }
    return visible;
}

QString Screen::TextOf(const QWidget& control)
{
    const bool isButton = control.inherits("QAbstractButton");
    const QString text =
        isButton || control.inherits("QLabel") ? control.property("text").toString() : QString();
    return isButton ? QString(text).remove('&') : text;
}

void Screen::Click(QWidget& control)
{
    EXPECT_TRUE(control.isVisible() && control.isEnabled())
        << control.objectName().toStdString() << " cannot be clicked";
    QTest::mouseClick(&control, Qt::LeftButton);
    Settle();
}

void Screen::Say(const QString& caption)
{
    QAbstractButton* found = nullptr;
    for (auto* each : Find("MessageBox")->findChildren<QAbstractButton*>()) {
        found = TextOf(*each) == caption ? each : found;
    }
    ASSERT_TRUE(found) << caption.toStdString();
    Click(*found);
}

void Screen::Leave(const QString& window, const QString& way)
{
    way == "Esc"     ? Press(*Find(window), Qt::Key_Escape)
    : way == "close" ? (Find(window)->close(), Settle())
                     : Click(window, way);
}

void Screen::Type(QWidget& where, const QString& text, Qt::KeyboardModifiers held)
{
    for (const QChar letter : text) {
        const auto key = static_cast<Qt::Key>(letter.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, &where, key, QString(letter), held);
    }
    Settle();
}

Play::Play(double pace) : clock(pace)
{
    SetDirectories(Utf8(Folder()), Utf8(Folder()));
    Start();
}

Play::~Play()
{
    frontEnd.reset();
    QDir::setCurrent(QDir::tempPath()); // the game makes its own folder the current one
}

void Play::Start()
{
    frontEnd.reset();
    ResetRules();
    dice = {};
    dice.otherwise = DrawOf(1, 50); // nothing but the ordinary wear happens
    frontEnd.emplace(clock);
    Connect({&*frontEnd, &dice, &clock});
    player.reacts = true;
    player.NextLifeIs("Иван");
    Do(NewGame);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
    player.boxes.clear();
}

void Play::JustBeforeMidnight(const std::deque<float>& draws)
{
    GameState.GameDate = std::chrono::year{2001} / 6 / 14;
    GameState.GameTime = {23, 30};
    dice.values = draws;
}

void Play::BeginQuarrel()
{
    GameState.Married = GameState.WifeFound = True;
    JustBeforeMidnight({DrawOf(25, 50)});
    Tick();
    EXPECT_TRUE(Until(Typing));
}

void Play::ExpectEnd(const std::function<void()>& body)
{
    QTimer::singleShot(0, qApp, body);
    QTimer patience;
    patience.callOnTimeout([] { QCoreApplication::exit(-1); });
    patience.start(10000);
    EXPECT_EQ(QApplication::exec(), 0);
    frontEnd.reset();
    EXPECT_TRUE(OpenWindows().isEmpty() && SavedFiles().isEmpty());
}

void Play::ForEachWindow(const std::function<void(QWidget&)>& look)
{
    player.reacts = false;
    std::vector<std::pair<QString, std::function<void()>>> openers{
        {"frmMain", [] {}},
        {"frmPlayerName",
         [] {
             AskName({"Введите Ваше имя", 1});
         }},
        {"frmLocGame", SaveGame},
        {"frmLocGame", LoadGame},
        {"frmLang", [] { (new frmLang(Find("frmMain")))->show(); }},
        {"InputBox", EnterCheat},
        {"MessageBox",
         [] {
             MsgBox("<b>Вы умерли</b> &голодной смертью!", "Желаю тебе быть большим и тольстым",
                    Icon::Question, Buttons::YesNo);
         }},
    };
    for (const WindowRow& row : WindowTable()) {
        openers.emplace_back(Text(row.name), [&row] { Windows().OpenWindow(row.name); });
    }
    for (const auto& [name, open] : openers) {
        SCOPED_TRACE(name.toStdString());
        EnterRules(open);
        QWidget* window = Find(name);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        look(*window);
        if (auto* dialog = qobject_cast<QDialog*>(window)) {
            dialog->done(QDialog::Rejected);
            Settle();
        }
    }
}

void Play::ExpectFreshLife(const QString& name)
{
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - " + name);
    EXPECT_TRUE(ClockTicks() && !Main().isMinimized());
    test::ExpectFreshLife(Utf8(name));
}

} // namespace torvenhall::test
