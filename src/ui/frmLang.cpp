#include "ui/frmLang.h"

#include <QFileInfo>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>

#include "game/entry.h"
#include "resources/basLangMGR.h"
#include "ui/widgets/cats.h"
#include "ui/widgets/gamelist.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

frmLang::frmLang(QWidget* parent)
    : GameWindow("frmLang", 380, 330, parent),
      list(new GameList("Языковых файлов пока нет", &Surface())),
      info(new QPlainTextEdit(&Surface()))
{
    setWindowTitle("Select Language");
    Surface().AddPanel({12, 12, 356, 306}, Scene::Panel::Deep);
    AddLabel("Label1", "Present Languages:", {26, 50, 240, 20}, TextType(12))
        ->SetColour(colour::Warm);
    list->setObjectName("List1");
    list->setAccessibleName("Present Languages:");
    Place(*list, {26, 72, 328, 84});
    auto* cat = new CatPicture(Cat::Translating, &Surface());
    Place(*cat, {278, 10, 64, 64});
    for (const std::string& file : LangFiles()) {
        list->addItem(QFileInfo(Text(file)).completeBaseName());
    }
    AddLabel("Label2", "Language Info:", {26, 162, 328, 20}, TextType(12))->SetColour(colour::Warm);
    info->setObjectName("Text1");
    info->setAccessibleName("Language Info:");
    info->setReadOnly(true);
    info->setPlaceholderText("Выберите язык в списке");
    Place(*info, {26, 184, 328, 80});
    auto* files = new QListWidget(&Surface()); // nothing uses it yet
    files->setObjectName("File1");
    files->setAccessibleName("File1");
    files->hide();
    AddButton("Command1", "Select", {158, 276, 96, 30});
    AddButton("Command2", "Cancel", {262, 276, 92, 30});
    connect(list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { ShowLanguage(list->row(item)); });
}

void frmLang::ShowLanguage(int row)
{
    // A row without a file has been reported; its texts are then not shown.
    EnterRules([row, box = QPointer(info)] {
        SelectLanguage(row + 1);
        if (box) {
            box->setPlainText("Description: " + Text(LangDescription) +
                              "\r\nCopyright: " + Text(LangCopyright));
        }
    });
}

} // namespace torvenhall
