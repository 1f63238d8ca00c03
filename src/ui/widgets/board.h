#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <array>

#include "core/port.h"

namespace torvenhall
{

/// What the labels of the main window show, for every window that shows some
/// of it too.
class LabelBoard : public QObject
{
    Q_OBJECT

public:
    LabelBoard();

    /// Every label as in a newly made main window.
    void Reset();
    /// Remembers a text and tells it, unless it is shown already.
    void Show(Label label, const QString& text, TextColour colour);
    const QString& ShownText(Label label) const { return At(label).text; }
    QColor Colour(Label label) const;
    bool IsDanger(Label label) const { return At(label).colour == TextColour::Red; }

signals:
    void Shown(torvenhall::Label label);

private:
    struct Entry {
        QString text;
        TextColour colour = TextColour::LightCyan;
    };
    const Entry& At(Label label) const { return entries[static_cast<std::size_t>(label)]; }

    std::array<Entry, LabelCount> entries;
};

} // namespace torvenhall
