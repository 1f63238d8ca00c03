#pragma once

#include "ui/widgets/gamelabel.h"
#include "ui/widgets/motion.h"

namespace torvenhall
{

/// A number that counts to its new value when it changes, while its text is
/// true at once; behind it there may be a note of what is about to change.
class CountingLabel : public GameLabel
{
public:
    CountingLabel(const Type& type, QWidget* parent);

    void ShowLabel(Label label) override;
    /// In small letters where there is room; empty for none.
    void SetNote(const QString& newNote, const QColor& newInk);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString Drawn() const;
    void PaintNote(QPainter& painter) const;

    Motion counting;
    double from = 0;
    QString note;
    QColor noteInk;
};

} // namespace torvenhall
