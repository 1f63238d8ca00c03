#include "support/play.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QWindow>

#include "core/life.h"
#include "core/waits.h"
#include "game/newgame.h"
#include "network/network.h"
#include "system/basSystem.h"
#include "ui/widgets/qtext.h"

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace torvenhall::test
{

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
    static const QStringList waiting{"MessageBox", "InputBox", "frmPlayerName", "frmLocGame",
                                     "frmVirus"};
    if (event->type() == QEvent::Timer && watched->objectName() == "tmrTime") {
        return !clockRuns;
    }
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (watches && dialog && event->type() == QEvent::Show && !event->spontaneous() &&
        waiting.contains(dialog->objectName())) {
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
    const auto* box = qobject_cast<QMessageBox*>(&dialog);
    if (!queue.empty()) {
        const Reaction next = queue.front();
        queue.pop_front();
        next(dialog);
    } else if (box && box->buttons().size() == 1) {
        Click(*box->buttons().first());
    } else {
        ADD_FAILURE() << "unexpected question: " << dialog.windowTitle().toStdString();
        qobject_cast<QDialog*>(&dialog)->done(QDialog::Rejected);
    }
}

void Player::NextLifeIs(const QString& name, int level)
{
    When("frmPlayerName", [name, level](QWidget& dialog) {
        auto& field = Control<QLineEdit>(&dialog, "Text1");
        field.selectAll();
        Type(field, name);
        Control<QComboBox>(&dialog, "Combo1").setCurrentIndex(level);
        Click(Control(&dialog, "Command1"));
    });
}

void Player::SavesAs(const QString& name)
{
    When("frmLocGame", [name](QWidget& dialog) {
        Type(Control<QLineEdit>(&dialog, "Text1"), name);
        Click(Control(&dialog, "Command1"));
    });
}

void Player::Answers(const QString& caption)
{
    When("MessageBox", [caption](QWidget& box) { ClickCaption(box, caption); });
}

QStringList OpenWindows()
{
    QStringList names;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible()) {
            names << each->objectName();
        }
    }
    names.sort();
    return names;
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
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text().remove('&');
    }
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label ? label->text() : QString();
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
    Click(Control(window, name));
}

void ClickCaption(QWidget& window, const QString& caption)
{
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (TextOf(*button) == caption) {
            return Click(*button);
        }
    }
    ADD_FAILURE() << "no button " << caption.toStdString();
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
    } else {
        QTest::keyClick(&where, static_cast<Qt::Key>(key), modifiers);
    }
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

void Play::JustBeforeMidnight()
{
    GameState.GameDate = std::chrono::year{2001} / 6 / 14;
    GameState.GameTime = {23, 30};
    GameState.GameSpeed = 30;
}

int Play::RunInEventLoop(const std::function<void()>& body)
{
    QTimer::singleShot(0, qApp, body);
    QTimer patience;
    patience.callOnTimeout([] { QCoreApplication::exit(-1); });
    patience.start(10000);
    return QApplication::exec();
}

QStringList Play::SavedFiles() const
{
    return QDir(Folder() + "SAVE").entryList(QDir::Files);
}

void Play::ExpectFreshLife(const QString& name)
{
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    EXPECT_EQ(Text(GameState.PlayerName), name);
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - " + name);
    for (const auto& [label, text] : {std::pair{"lblMoney", "$15"},
                                      {"lblHappy", "25%"},
                                      {"lblHealth", "40%"},
                                      {"lblEat", "75%"},
                                      {"lblMessage", ""},
                                      {"lblTime", "1 января 2001 г. - 00:00"}}) {
        EXPECT_EQ(TextOf("frmMain", label), text);
    }
}

} // namespace torvenhall::test
