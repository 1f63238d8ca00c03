#pragma once

#include "core/port.h"
#include "ui/widgets/gamewindow.h"

class QLineEdit;

namespace torvenhall
{

class GameList;

/// The dialog that saves and loads: the saved games and a name, typed for
/// saving, picked for loading.
class frmLocGame : public GameWindow
{
public:
    frmLocGame(const GameNameQuestion& question, QWidget* parent);

    std::string EnteredName() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;

private:
    void AddFolder();
    void AddEntries(const GameNameQuestion& question);

    GameList* list;
    QLineEdit* name;
};

} // namespace torvenhall
