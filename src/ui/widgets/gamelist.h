#pragma once

#include <QListWidget>

namespace torvenhall
{

/// A list that shows whole rows only, and says so when it is empty.
class GameList : public QListWidget
{
public:
    /// `emptiness` is what stands in an empty list.
    GameList(const QString& emptiness, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;

private:
    void KeepRowsWhole();

    QString emptiness;
};

} // namespace torvenhall
