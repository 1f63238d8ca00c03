#pragma once

#include <QWidget>

namespace torvenhall
{

/// A bar beside a status line that moves while the line waits.
class WaitMark : public QWidget
{
public:
    explicit WaitMark(QWidget* parent);
    /// Whether something waits; each call while it does moves the mark.
    void Step(bool waits);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool waiting = false;
    int step = 0;
};

} // namespace torvenhall
