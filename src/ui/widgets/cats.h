#pragma once

#include <QIcon>
#include <QWidget>

namespace torvenhall
{

/// What the cat of the house is about, in the order of its drawings.
enum class Cat { Informing, Asking, Warned, Burnt, Loading, Saving, Translating, Typing };

/// The cat, cut out, as an icon of any size.
QIcon CatIcon(Cat cat);

/// The cat standing upon the edge of a panel or a list. Clicks go through.
class CatPicture : public QWidget
{
public:
    CatPicture(Cat cat, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Cat cat;
};

} // namespace torvenhall
