#include "support/play.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "core/life.h"
#include "core/newgame.h"
#include "core/outside.h"
#include "network/network.h"
#include "system/basSystem.h"
#include "ui/support/text.h"

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace torvenhall::test
{

namespace
{

const QStringList Waiting{"MessageBox", "InputBox", "frmPlayerName", "frmLocGame", "frmVirus"};
constexpr int PatienceMilliseconds = 10000;

void PressCaption(QWidget& dialog, const QString& caption)
{
    for (auto* button : dialog.findChildren<QAbstractButton*>()) {
        if (TextOf(*button) == caption) {
            Click(*button);
            return;
        }
    }
    ADD_FAILURE() << "no button " << caption.toStdString();
}

} // namespace

Player::Player()
{
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
    if (event->type() == QEvent::Timer && watched->objectName() == "tmrTime") {
        return !clockRuns;
    }
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (watches && dialog && event->type() == QEvent::Show && !event->spontaneous() &&
        Waiting.contains(dialog->objectName())) {
        dialogs.push_back(dialog->objectName());
        if (const auto* box = qobject_cast<QMessageBox*>(dialog)) {
            boxes.push_back(box->windowTitle() + ": " + box->text());
        }
        // From its own event loop, as a player's click would come.
        QTimer::singleShot(0, dialog, [this, dialog] { React(*dialog); });
    }
    return false;
}

void Player::React(QWidget& dialog)
{
    auto& queue = reactions[dialog.objectName()];
    if (!queue.empty()) {
        const Reaction next = queue.front();
        queue.pop_front();
        next(dialog);
        return;
    }
    if (const auto* box = qobject_cast<QMessageBox*>(&dialog); box && box->buttons().size() == 1) {
        Click(*box->buttons().first());
        return;
    }
    ADD_FAILURE() << "unexpected question: " << dialog.windowTitle().toStdString();
    qobject_cast<QDialog*>(&dialog)->done(QDialog::Rejected);
}

void Player::NextLifeIs(const QString& name, int level)
{
    When("frmPlayerName", [name, level](QWidget& dialog) {
        auto& field = *dialog.findChild<QLineEdit*>("Text1");
        field.selectAll();
        Type(field, name);
        dialog.findChild<QComboBox*>("Combo1")->setCurrentIndex(level);
        Click(*dialog.findChild<QAbstractButton*>("Command1"));
    });
}

void Player::Answer(const QString& caption)
{
    When("MessageBox", [caption](QWidget& box) { PressCaption(box, caption); });
}

QWidget* Find(const QString& window)
{
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each->objectName() == window) {
            return each;
        }
    }
    return nullptr;
}

QString TextOf(const QWidget& control)
{
    QString text;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        text = button->text();
    } else if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->text();
    }
    return text.remove('&');
}

QString TextOf(const QString& window, const QString& name)
{
    return TextOf(Control<QWidget>(window, name));
}

void Click(QWidget& control)
{
    EXPECT_TRUE(control.isVisible() && control.isEnabled())
        << control.objectName().toStdString() << " cannot be clicked";
    QTest::mouseClick(&control, Qt::LeftButton);
}

void Click(const QString& window, const QString& name)
{
    Click(Control<>(window, name));
}

void Choose(const QString& menuItem)
{
    Control<QAction>("frmMain", menuItem).trigger();
}

void Press(QWidget& where, int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ControlModifier || key == Qt::Key_F1) {
        // A shortcut is found only on the way to the active window, and
        // without a desktop nothing hands the activation back.
        where.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(where.window()));
        QTest::keyClick(where.window()->windowHandle(), static_cast<Qt::Key>(key), modifiers);
        return;
    }
    QTest::keyClick(&where, static_cast<Qt::Key>(key), modifiers);
}

void Type(QWidget& where, const QString& text)
{
    for (const QChar letter : text) {
        const auto key = static_cast<Qt::Key>(letter.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, &where, key, QString(letter), Qt::NoModifier);
    }
}

Play::Play(double pace) : clock(pace)
{
    ResetLife();
    ResetLabels();
    ResetNetwork();
    GameState = {};
    dice.otherwise = DrawOf(1, 50); // nothing but the ordinary wear happens
    Connect({&frontEnd, &dice, &clock});
    SetDirectories(Folder().toStdString(), Folder().toStdString());
}

Play::~Play()
{
    // An ended program leaves the toolkit ended too, until its loop ran again.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QApplication::exec();
    // The game may have made its own folder the current one.
    QDir::setCurrent(QDir::tempPath());
}

void Play::Begin(int level, const QString& name)
{
    player.NextLifeIs(name, level);
    EnterRules(NewGame);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
    player.boxes.clear();
    player.dialogs.clear();
}

void Play::Tick(int times)
{
    for (int i = 0; i < times; ++i) {
        EnterTick();
    }
}

void Play::JustBeforeMidnight()
{
    GameState.GameDate = std::chrono::year{2001} / 6 / 14;
    GameState.GameTime = {23, 30};
    GameState.GameSpeed = 30;
}

void Play::FinishDay()
{
    const Date today = GameState.GameDate;
    for (int i = 0; i < 100 && GameState.GameDate == today; ++i) {
        EnterTick();
    }
}

int Play::RunInEventLoop(const std::function<void()>& body)
{
    QTimer::singleShot(0, qApp, body);
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, qApp, [] { QCoreApplication::exit(-1); });
    patience.start(PatienceMilliseconds);
    return QApplication::exec();
}

QStringList Play::SavedFiles() const
{
    return QDir(Folder() + "SAVE").entryList(QDir::Files);
}

void Play::ExpectFreshLife(const QString& name)
{
    EXPECT_EQ(Text(GameState.PlayerName), name);
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$15");
    EXPECT_EQ(TextOf("frmMain", "lblHappy"), "25%");
    EXPECT_EQ(TextOf("frmMain", "lblHealth"), "40%");
    EXPECT_EQ(TextOf("frmMain", "lblEat"), "75%");
    EXPECT_EQ(TextOf("frmMain", "lblTime"), "1 января 2001 г. - 00:00");
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - " + name);
}

Meanwhile::Meanwhile(std::function<void()> newCall) : call(std::move(newCall))
{
    startTimer(1, Qt::PreciseTimer);
}

} // namespace torvenhall::test
