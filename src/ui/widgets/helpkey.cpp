#include "ui/widgets/helpkey.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

#include "game/entry.h"
#include "game/programs.h"

namespace torvenhall
{

void OpenManualByKey(QWidget* window)
{
    auto* key = new QShortcut(QKeySequence("F1"), window);
    key->setAutoRepeat(false); // one editor, however long the key is held
    QObject::connect(key, &QShortcut::activated, window, [] { EnterRules(ShowReadme); });
}

} // namespace torvenhall
