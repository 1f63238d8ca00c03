#pragma once

#include "ui/widgets/gamewindow.h"

class QPlainTextEdit;

namespace torvenhall
{

class GameList;

/// The language chooser. Dormant: nothing opens it and nothing fills the list
/// of language files yet.
class frmLang : public GameWindow
{
public:
    explicit frmLang(QWidget* parent);

private:
    void ShowLanguage(int row);

    GameList* list;
    QPlainTextEdit* info;
};

} // namespace torvenhall
