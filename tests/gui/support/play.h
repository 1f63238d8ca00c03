#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <map>
#include <vector>

#include "core/GameState.h"
#include "core/basGame.h"
#include "game/entry.h"
#include "support/scripted.h"
#include "ui/QtFrontEnd.h"
#include "ui/QtWallClock.h"
#include "ui/frmMain.h"

void PrintTo(const QString& text, std::ostream* out);

namespace torvenhall::test
{

/// Sits before the screen: reads every dialog that waits for an answer and
/// does what was queued for it. Boxes with one button are closed by
/// themselves; any other question that nobody expected fails the test.
class Player : public QObject
{
public:
    using Reaction = std::function<void(QWidget& dialog)>;

    Player();
    ~Player() override;

    /// Queues what happens while the next dialog of that name is open.
    void When(const QString& dialog, Reaction reaction) { reactions[dialog].push_back(reaction); }
    /// Answers the next name dialog.
    void NextLifeIs(const QString& name, int level = 1);
    /// Types a name into the next dialog that saves, and confirms.
    void SavesAs(const QString& name);
    /// Presses the button of that caption in the next message box.
    void Answers(const QString& caption);

    std::vector<QString> boxes;   ///< "title: text" of every message box so far
    std::vector<QString> dialogs; ///< object name of every dialog that waited
    bool clockRuns = false;       ///< lets the main window's own timer tick
    bool watches = true;          ///< off where windows are only looked at

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void React(QWidget& dialog);

    std::map<QString, std::deque<Reaction>> reactions;
};

/// The names of the windows on screen, sorted; each is also its class's name.
QStringList OpenWindows();
/// The open window of that name, or nothing.
QWidget* Find(const QString& window);

/// A control by its name; a test that asks for one that is missing ends there.
template <class Wanted = QAbstractButton>
Wanted& Control(const QWidget* window, const QString& name)
{
    auto* found = window ? window->findChild<Wanted*>(name) : nullptr;
    if (!found) {
        ADD_FAILURE() << "no " << name.toStdString() << " in "
                      << (window ? window->objectName().toStdString() : "a closed window");
        throw std::runtime_error("a control is missing");
    }
    return *found;
}
template <class Wanted = QAbstractButton>
Wanted& Control(const QString& window, const QString& name)
{
    return Control<Wanted>(Find(window), name);
}

/// A label's or button's text as the player reads it, without mnemonics.
QString TextOf(const QWidget& control);
QString TextOf(const QString& window, const QString& name);

/// The left mouse button on a control that must be visible and enabled.
void Click(QWidget& control);
void Click(const QString& window, const QString& name);
void ClickCaption(QWidget& window, const QString& caption);
void Choose(const QString& menuItem); ///< of the main window
void Press(QWidget& where, int key, Qt::KeyboardModifiers modifiers = {});
/// Types a text key by key; unlike QTest's own helper Cyrillic too.
void Type(QWidget& where, const QString& text);

/// A game in the real windows: scripted dice, the waits hurried, files in a
/// folder of the test's own. Ticks come from the test unless the player's
/// `clockRuns` is set.
class Play : public ::testing::Test
{
protected:
    explicit Play(double pace = 400);
    ~Play() override;

    /// A new game through the name dialog.
    void Begin(int level = 1, const QString& name = "Иван");
    frmMain& Main() { return frontEnd.MainWindow(); }
    bool ClockTicks() { return Control<QTimer>(&Main(), "tmrTime").isActive(); }
    /// The next tick begins a day.
    static void JustBeforeMidnight();
    /// Runs a body from the application's event loop; its exit code, or -1
    /// when the program did not end within ten seconds.
    static int RunInEventLoop(const std::function<void()>& body);
    QString Folder() const { return folder.path() + '/'; }
    QStringList SavedFiles() const;
    /// A new life in the main window alone.
    void ExpectFreshLife(const QString& name);

    QTemporaryDir folder;
    ScriptedDice dice;
    QtWallClock clock;
    QtFrontEnd frontEnd{clock};
    Player player;
};

/// Calls again and again, in every loop, while it is there.
struct Meanwhile : QTimer {
    explicit Meanwhile(const std::function<void()>& call)
    {
        setTimerType(Qt::PreciseTimer);
        callOnTimeout(call);
        start(1);
    }
};

} // namespace torvenhall::test
