#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include "app/steppedclock.h"

namespace torvenhall
{

// What a player does, as a text: one action a line, its words apart by a blank,
// in quotes where a word has blanks itself, is empty or cannot be seen. Windows
// and controls have the names that they have in the code; what has none, as the
// buttons of a box, has its caption's.
//
//   start SEED                the program starts, its dice begin with this
//   game NAME BASE64          there is such a saved game
//   life NAME BASE64          there is such a life that was in hand
//   wait SECONDS              time passes
//   see TEXT                  what the main window shows has become this
//   click WINDOW CONTROL      also the title of a menu, which opens
//   choose WINDOW LIST ROW    a click on that row, counted from 0
//   open WINDOW LIST ROW      a double click
//   menu WINDOW ITEM          of the menu that is open
//   dismiss WINDOW            a click beside the open menu or list
//   key WINDOW KEYS           "Ctrl+S"; what has a text is typed instead
//   hold WINDOW KEYS          the key repeats itself
//   type WINDOW TEXT
//   close WINDOW              by its close box
//   restore WINDOW            from the taskbar

/// The first word is the deed.
using Action = QStringList;

QString LineOf(const Action& action);
/// Empty for an empty line or one that begins with "#".
Action ActionOf(const QString& line);

/// The file of the actions. Each is in the file before it is done, so that a
/// crash keeps it.
class Journal
{
public:
    /// Begins the file; `Trouble` tells why it could not.
    explicit Journal(const QString& path);
    QString Trouble() const { return trouble; }

    /// A line that no time belongs to.
    void WriteAtOnce(const Action& action);
    /// The same behind the time that has passed since the last one and what
    /// the main window has come to show. A text typed in parts is one line.
    void Write(const Action& action, const SteppedClock& clock);
    /// Begins the time anew.
    void Restart();

private:
    void EndTyping();
    void Put(const QString& text);

    QFile file;
    QString trouble;
    QString typingIn; ///< the window in which the line that is not ended types
    QString seen;
    qint64 last = 0;
};

/// What the main window shows of the player, in one line.
QString Sight();

} // namespace torvenhall
