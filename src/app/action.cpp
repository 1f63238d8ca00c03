#include "app/action.h"

#include <QApplication>
#include <QLineEdit>

#include <algorithm>
#include <utility>

#include "core/shown.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

bool NeedsQuotes(const QString& word)
{
    return word.isEmpty() || word.startsWith('#') || std::ranges::any_of(word, [](QChar each) {
               return each.isSpace() || !each.isPrint() || each == '"' || each == '\\';
           });
}

QString Escaped(const QString& word)
{
    QString escaped;
    for (const QChar each : word) {
        const bool seen = each.isPrint() && (!each.isSpace() || each == ' ');
        if (each == '"' || each == '\\') {
            escaped += '\\';
        }
        escaped += seen ? QString(each) : QString("\\u%1").arg(each.unicode(), 4, 16, QChar('0'));
    }
    return escaped;
}

/// Reads one word from the line, which begins with it, and what is behind it.
QString TakeWord(QString& line)
{
    QString word;
    const bool quoted = line.startsWith('"');
    qsizetype at = quoted ? 1 : 0;
    for (; at < line.size() && line[at] != (quoted ? '"' : ' '); ++at) {
        if (line[at] != '\\' || at + 1 >= line.size()) {
            word += line[at];
        } else if (line[++at] == 'u') {
            word += QChar(line.mid(at + 1, 4).toUShort(nullptr, 16));
            at += 4;
        } else {
            word += line[at];
        }
    }
    line = line.mid(at + (quoted ? 1 : 0)).trimmed();
    return word;
}

bool InText(const QString& windowName)
{
    return std::ranges::any_of(QApplication::topLevelWidgets(), [&](const QWidget* window) {
        return window->isVisible() && window->objectName() == windowName &&
               qobject_cast<QLineEdit*>(window->focusWidget());
    });
}

} // namespace

QString LineOf(const Action& action)
{
    QStringList words;
    for (const QString& word : action) {
        words << (NeedsQuotes(word) ? '"' + Escaped(word) + '"' : word);
    }
    return words.join(' ');
}

Action ActionOf(const QString& line)
{
    QString rest = line.trimmed();
    Action action;
    while (!rest.isEmpty() && !rest.startsWith('#')) {
        action << TakeWord(rest);
    }
    return action;
}

QString Sight()
{
    QStringList parts;
    for (const Label label : {Label::lblMoney, Label::lblHappy, Label::lblEat, Label::lblHealth,
                              Label::lblEducation, Label::lblStatus, Label::lblTime}) {
        parts << Text(ShownAt(label).text);
    }
    return parts.join(' ');
}

Journal::Journal(const QString& path) : file(path)
{
    if (!file.open(QFile::WriteOnly | QFile::Truncate)) {
        trouble = file.errorString();
    }
}

void Journal::Restart()
{
    EndTyping();
    last = 0;
    seen.clear();
}

void Journal::Put(const QString& text)
{
    file.write(text.toUtf8());
    file.flush();
}

void Journal::EndTyping()
{
    if (!typingIn.isNull()) {
        typingIn = {};
        Put("\"\n");
    }
}

void Journal::WriteAtOnce(const Action& action)
{
    EndTyping();
    Put(LineOf(action) + '\n');
}

void Journal::Write(const Action& action, const SteppedClock& clock)
{
    const bool types = action.value(0) == "type";
    // Elsewhere each key may do something, and its moment counts.
    if (types && InText(typingIn) && typingIn == action.value(1)) {
        Put(Escaped(action.value(2)));
        return;
    }
    EndTyping();
    if (const qint64 passed = clock.Milliseconds() - std::exchange(last, clock.Milliseconds())) {
        WriteAtOnce({"wait", QString::number(static_cast<double>(passed) / 1000, 'f', 3)});
    }
    if (const QString sight = Sight(); sight != seen) {
        seen = sight;
        WriteAtOnce({"see", sight});
    }
    if (types) {
        typingIn = action.value(1);
        Put("type " + typingIn + " \"" + Escaped(action.value(2)));
    } else {
        WriteAtOnce(action);
    }
}

} // namespace torvenhall
