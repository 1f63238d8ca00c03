#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDir>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <map>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "game/entry.h"
#include "support/scripted.h"
#include "ui/QtFrontEnd.h"
#include "ui/frmMain.h"
#include "ui/widgets/qtext.h"

void PrintTo(const QString& text, std::ostream* out);

namespace torvenhall::test
{

/// What is on screen, and what a player does to it. Each deed returns when the
/// windows have settled.
struct Screen {
    /// Lets the event loop run until no dialog waits for the player.
    static void Settle();
    /// The same again and again until something holds; false if it never did.
    static bool Until(const std::function<bool()>& holds);

    /// The visible windows by name, which is also their class's.
    static QMultiMap<QString, QWidget*> Visible();
    static QStringList OpenWindows() { return Visible().keys(); }
    static QWidget* Find(const QString& window) { return Visible().value(window); }
    template <class Wanted = QAbstractButton>
    static Wanted& Control(const QString& window, const QString& name)
    {
        auto* found = Find(window) ? Find(window)->findChild<Wanted*>(name) : nullptr;
        return found ? *found : throw std::runtime_error(Utf8("no " + name + " in " + window));
    }
    /// A label's or button's text as the player reads it, without mnemonics.
    static QString TextOf(const QWidget& control);
    static QString TextOf(const QString& window, const QString& name)
    {
        return TextOf(Control<QWidget>(window, name));
    }

    /// What a window's handler would do.
    static void Do(const std::function<void()>& rules) { EnterRules(rules), Settle(); }
    static void Tick() { EnterTick(), Settle(); }
    static void Click(QWidget& control); ///< one that is visible and enabled
    static void Click(const QString& window, const QString& name) { Click(Control(window, name)); }
    static void Say(const QString& caption); ///< presses that button of the message box
    /// By "Esc", by the close box ("close"), or by a button's name.
    static void Leave(const QString& window, const QString& way);
    static void Choose(const QString& item)
    {
        Control<QAction>("frmMain", item).trigger(), Settle();
    }
    static void Press(QWidget& where, Qt::Key key) { QTest::keyClick(&where, key), Settle(); }
    /// Types a text key by key; unlike QTest's own helper Cyrillic too.
    static void Type(QWidget& where, const QString& text, Qt::KeyboardModifiers held = {});
};

/// Sits before the screen: whenever the windows settle, does to every dialog
/// that has opened what was queued for its name. Boxes with one button are
/// closed by themselves; any other question that nobody expected is a failure.
struct Player : QObject, Screen {
    using Reaction = std::function<void()>;

    Player();
    ~Player() override;
    void When(const QString& dialog, const Reaction& done) { reactions[dialog] << done; }
    void NextLifeIs(const QString& name, int level = 1);
    void SavesAs(const QString& name);
    bool Reacts(); ///< to the next dialog that has opened; false if there is none
    bool eventFilter(QObject* watched, QEvent* event) override;

    QStringList boxes;  ///< "title: text" of every message box so far
    bool reacts = true; ///< off: leaves every dialog open
    static inline Player* now = nullptr;
    std::map<QString, QList<Reaction>> reactions;
    QList<QPointer<QWidget>> opened;
};

/// A game begun in the real windows: scripted dice, the waits hurried, files
/// in a folder of the test's own, ticks from the test alone.
struct Play : ::testing::Test, Screen {
    explicit Play(double pace = 400);
    ~Play() override;

    /// Starts the program anew and begins a game; whatever ran is ended.
    void Start();
    frmMain& Main() { return frontEnd->MainWindow(); }
    bool ClockTicks() { return Control<QTimer>("frmMain", "tmrTime").isActive(); }
    static QString Shown(Label label) { return Text(ShownAt(label).text); }
    static bool Typing() { return !Shown(Label::lblMessage).isEmpty(); }
    /// The next tick begins a day, after the 14th of June, with these draws.
    void JustBeforeMidnight(const std::deque<float>& draws = {});
    /// That tick: an angry wife's message of 85 characters is being typed.
    void BeginQuarrel();
    static QString Today() { return Text(DateText(GameState.GameDate)); }
    /// Runs a body from the application's event loop, which it must end within
    /// ten seconds, nothing left on screen and nothing saved.
    void ExpectEnd(const std::function<void()>& body);
    QString Folder() const { return folder.path() + '/'; }
    QStringList SavedFiles() { return QDir(Folder() + "SAVE").entryList(QDir::Files); }
    /// Opens every window, dialog and box of the game in turn, the main window
    /// first, and looks at it.
    void ForEachWindow(const std::function<void(QWidget& window)>& look);
    /// A new life in the main window alone.
    void ExpectFreshLife(const QString& name);

    QTemporaryDir folder;
    ScriptedDice dice;
    QtWallClock clock;
    std::optional<QtFrontEnd> frontEnd;
    Player player;
};

} // namespace torvenhall::test
