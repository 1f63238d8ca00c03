#pragma once

#include <QWidget>

namespace torvenhall
{

/// The lights of the modem and the yarn that comes out of it, laid over the
/// network's picture: dark while no line is up, green while one is, with sparks
/// on the yarn while it calls or carries something.
class LineLights : public QWidget
{
public:
    explicit LineLights(QWidget* parent);

    /// Shows the lines as they are; called some ten times a second, repaints
    /// only what has changed.
    void Step();

private:
    void paintEvent(QPaintEvent* event) override;

    bool up = false;
    bool busy = false;
    int beat = 0;
};

} // namespace torvenhall
