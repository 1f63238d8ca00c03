#pragma once

#include "ui/widgets/gamewindow.h"

class QListWidget;
class QPlainTextEdit;

namespace torvenhall
{

/// The language chooser. Dormant: nothing opens it and nothing fills the list
/// of language files yet.
class frmLang : public GameWindow
{
public:
    explicit frmLang(QWidget* parent);

private:
    void ShowLanguage(int row);

    QListWidget* list;
    QPlainTextEdit* info;
};

} // namespace torvenhall
