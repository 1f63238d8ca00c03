#include "ui/widgets/motion.h"

#include "ui/widgets/quietlife.h"

namespace torvenhall
{

void Motion::Begin(int milliseconds)
{
    if (StillLife() || !moved.isVisible()) {
        return;
    }
    if (running == nullptr) {
        running = new QVariantAnimation(&moved);
        running->setStartValue(1.0);
        running->setEndValue(0.0);
        running->setEasingCurve(QEasingCurve::OutQuad);
        QObject::connect(running, &QVariantAnimation::valueChanged, &moved,
                         qOverload<>(&QWidget::update));
    }
    running->stop();
    running->setDuration(milliseconds);
    running->start();
}

double Motion::Left() const
{
    const bool moves = running != nullptr && running->state() == QAbstractAnimation::Running;
    return moves ? running->currentValue().toDouble() : 0;
}

} // namespace torvenhall
