#include "support/looks.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextEdit>
#include <QtMath>

#include "ui/support/button.h"
#include "ui/support/label.h"
#include "ui/support/metrics.h"

namespace torvenhall::test
{

namespace
{

// Letters squeezed more than this, or smaller, are no longer easy to read.
constexpr double NarrowestStretch = 0.7;
constexpr double SmallestUnits = 9;
constexpr double ButtonPadding = 9;

/// The height that a text needs in lines of a width, in the smallest font
/// that is still readable.
double WrappedHeight(const GameLabel& label)
{
    QFont smallest = label.font();
    smallest.setPixelSize(std::min(smallest.pixelSize(), Px(SmallestUnits)));
    return QFontMetricsF(smallest)
        .boundingRect(QRectF(0, 0, label.contentsRect().width(), 1e5), Qt::TextWordWrap,
                      label.text())
        .height();
}

/// Where a label's letters stand, in the label.
QRectF Ink(const GameLabel& label)
{
    if (label.wordWrap()) {
        return label.contentsRect();
    }
    const QFontMetricsF metrics(label.font());
    const QRectF tight = metrics.tightBoundingRect(label.text());
    const double width =
        std::min(metrics.horizontalAdvance(label.text()), double(label.contentsRect().width()));
    const QRectF line =
        QStyle::alignedRect(Qt::LeftToRight, label.alignment(),
                            QSize(qCeil(width), qCeil(metrics.height())), label.contentsRect());
    return {line.left(), line.top() + metrics.ascent() + tight.top(), width, tight.height()};
}

void CheckLabel(const GameLabel& label, QStringList& findings)
{
    const QString name = NameOf(label, label.text());
    if (label.wordWrap()) {
        if (WrappedHeight(label) > label.contentsRect().height() || !label.TextFits()) {
            findings << name + " does not fit in a readable size";
        }
        return;
    }
    const double natural = QFontMetricsF(label.font()).horizontalAdvance(label.text());
    if (natural * NarrowestStretch > label.contentsRect().width() || !label.TextFits()) {
        findings << name + " is cut at the side";
    }
    const QRectF ink = Ink(label);
    if (ink.top() < -0.5 || ink.bottom() > label.height() + 0.5) {
        findings << name + " is cut above or below";
    }
}

void CheckButton(const GameButton& button, QStringList& findings)
{
    const QFontMetricsF metrics(button.font());
    const double room = button.width() - 2 * Px(ButtonPadding);
    const double natural = metrics.horizontalAdvance(QString(button.text()).remove('&'));
    if (natural * NarrowestStretch > room || !button.TextFits() ||
        metrics.height() > button.height()) {
        findings << NameOf(button, button.text()) + " is cut";
    }
}

void CheckCombo(const QComboBox& combo, QStringList& findings)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.fontMetrics().horizontalAdvance(combo.itemText(i)) > field.width()) {
            findings << NameOf(combo, combo.itemText(i)) + " is cut";
        }
    }
}

void CheckMenuBar(const QMenuBar& bar, QStringList& findings)
{
    for (QAction* action : bar.actions()) {
        const QRect place = bar.actionGeometry(action);
        if (place.isEmpty() || !bar.rect().contains(place) ||
            bar.fontMetrics().height() > place.height()) {
            findings << NameOf(bar, action->text()) + " is cut";
        }
    }
}

/// What a text takes up in its parent; empty for what shows none.
QRectF TextPlace(const QWidget& control)
{
    if (const auto* label = dynamic_cast<const GameLabel*>(&control)) {
        return label->text().isEmpty() ? QRectF() : Ink(*label).translated(label->pos());
    }
    const bool shows = qobject_cast<const QAbstractButton*>(&control) ||
                       qobject_cast<const QLineEdit*>(&control) ||
                       qobject_cast<const QComboBox*>(&control) ||
                       qobject_cast<const QTextEdit*>(&control) ||
                       qobject_cast<const QAbstractItemView*>(&control);
    return shows ? QRectF(control.geometry()) : QRectF();
}

void CheckControl(QWidget& control, QStringList& findings)
{
    if (const auto* label = dynamic_cast<GameLabel*>(&control)) {
        CheckLabel(*label, findings);
    } else if (const auto* button = dynamic_cast<GameButton*>(&control)) {
        CheckButton(*button, findings);
    } else if (const auto* combo = qobject_cast<QComboBox*>(&control)) {
        CheckCombo(*combo, findings);
    } else if (const auto* bar = qobject_cast<QMenuBar*>(&control)) {
        CheckMenuBar(*bar, findings);
    } else if (const auto* wrapped = qobject_cast<QLabel*>(&control);
               wrapped && wrapped->wordWrap()) {
        if (wrapped->heightForWidth(wrapped->width()) > wrapped->height() + 1) {
            findings << NameOf(control, wrapped->text()) + " is cut below";
        }
    } else if (!TextPlace(control).isEmpty() && !qobject_cast<QTextEdit*>(&control) &&
               !qobject_cast<QAbstractItemView*>(&control)) {
        // What is left are the toolkit's own fields, and the buttons of boxes.
        const bool wide =
            qobject_cast<QLineEdit*>(&control) || control.sizeHint().width() <= control.width() + 1;
        if (!wide || control.fontMetrics().height() > control.contentsRect().height()) {
            findings << NameOf(control, control.objectName()) + " is cut";
        }
    }
}

bool IsSloganAndShadow(const QWidget& one, const QWidget& other)
{
    const auto* left = qobject_cast<const QLabel*>(&one);
    const auto* right = qobject_cast<const QLabel*>(&other);
    return left && right && left->text() == right->text();
}

void CheckOverlaps(const QList<QWidget*>& controls, QStringList& findings)
{
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            const QWidget &one = *controls[i], &other = *controls[j];
            if (one.parent() == other.parent() && !IsSloganAndShadow(one, other) &&
                TextPlace(one).adjusted(0.5, 0.5, -0.5, -0.5).intersects(TextPlace(other))) {
                findings << one.objectName() + " lies over " + other.objectName();
            }
        }
    }
}

} // namespace

QString NameOf(const QWidget& control, const QString& text)
{
    return control.objectName() + " \"" + text.left(40) + '"';
}

QStringList TextFindings(QWidget& window)
{
    QStringList findings;
    QList<QWidget*> shown;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->isVisible() && control->window() == &window) {
            shown << control;
            CheckControl(*control, findings);
            const bool words = !TextPlace(*control).isEmpty();
            if (words && !control->parentWidget()->rect().contains(control->geometry())) {
                findings << control->objectName() + " stands out of its parent";
            }
        }
    }
    CheckOverlaps(shown, findings);
    return findings;
}

} // namespace torvenhall::test
