#include "ui/frmLocGame.h"

#include <QDir>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>

#include "system/basSystem.h"
#include "ui/widgets/cats.h"
#include "ui/widgets/gamelist.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double ListTop = 74;
constexpr double CatSide = 60;

} // namespace

frmLocGame::frmLocGame(const GameNameQuestion& question, QWidget* parent)
    : GameWindow("frmLocGame", 380, 330, parent),
      list(new GameList("Сохранённых игр пока нет", &Surface())),
      name(new QLineEdit(Text(question.name), &Surface()))
{
    setWindowTitle(Text(question.caption));
    Surface().AddPanel({12, 12, 356, 306}, Scene::Panel::Deep);
    AddLabel("Label1", Text(question.heading), {26, 44, 328 - CatSide - 16, 24}, TextType(15, true))
        ->SetColour(colour::Warm);
    AddFolder();
    AddEntries(question);

    GameButton* confirm = AddButton("Command1", Text(question.confirm), {136, 276, 118, 30});
    // To load, first a game is chosen.
    const auto light = [this, confirm] { confirm->SetPrimary(!name->text().isEmpty()); };
    connect(name, &QLineEdit::textChanged, confirm, light);
    light();
    confirm->SetGlyph(question.saving ? Glyph::Diskette : Glyph::Play);
    GameButton* cancel = AddButton("Command2", "Отмена", {262, 276, 92, 30});
    connect(confirm, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(cancel, &QAbstractButton::clicked, this, &frmLocGame::reject);
    TabThrough({list, name, confirm, cancel});
    if (question.saving) {
        name->setFocus();
        name->selectAll();
    } else {
        list->setFocus();
    }
}

/// Where the saved games lie; of a long path the end.
void frmLocGame::AddFolder()
{
    const QRectF place(26, 24, 328 - CatSide - 16, 16);
    const QString path = QDir::toNativeSeparators(Text(DataDirectory() + "SAVE"));
    const Type type = TextType(10.5);
    GameLabel* folder = AddLabel(
        "Folder",
        QFontMetrics(type.Font()).elidedText("Папка: " + path, Qt::ElideMiddle, Px(place.width())),
        place, type);
    folder->SetColour(colour::Faint);
    folder->setToolTip(path);
}

void frmLocGame::AddEntries(const GameNameQuestion& question)
{
    list->setObjectName("List1");
    list->setAccessibleName(Text(question.heading));
    const double troubleHeight = question.trouble.empty() ? 0 : 36;
    Place(*list, {26, ListTop, 328, 230 - ListTop - troubleHeight});
    auto* cat = new CatPicture(question.saving ? Cat::Saving : Cat::Loading, &Surface());
    Place(*cat, {342 - CatSide, ListTop + 2 - CatSide, CatSide, CatSide});
    if (!question.trouble.empty()) {
        GameLabel* trouble = AddLabel("Trouble", Text(question.trouble),
                                      {26, 232 - troubleHeight, 328, troubleHeight}, TextType(12));
        trouble->SetColour(colour::Loss);
        trouble->setWordWrap(true);
        name->setAccessibleDescription(trouble->text());
    }
    for (const std::string& game : question.games) {
        list->addItem(Text(game));
    }
    name->setObjectName("Text1");
    name->setAccessibleName("Название игры");
    name->setPlaceholderText("Название игры");
    Place(*name, {26, 238, 328, 28});
    name->setEnabled(question.saving);
    const auto pick = [this](const QListWidgetItem* item) { name->setText(item->text()); };
    connect(list, &QListWidget::itemClicked, this, pick);
    // The arrow keys pick as a click does; the focus alone picks nothing.
    connect(list, &QListWidget::itemSelectionChanged, this, [this, pick] {
        for (const QListWidgetItem* item : list->selectedItems()) {
            pick(item);
        }
    });
    // A second click by mistake must not write over a game.
    if (!question.saving) {
        connect(list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    }
    list->installEventFilter(this);
    connect(name, &QLineEdit::returnPressed, this, &QDialog::accept);
}

std::string frmLocGame::EnteredName() const
{
    return Utf8(name->text());
}

bool frmLocGame::eventFilter(QObject* watched, QEvent* event)
{
    // Enter takes a row that was chosen; the focus alone chooses nothing.
    if (watched == list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (!list->selectedItems().isEmpty()) {
                accept();
            }
            return true;
        }
        // The focus stands on the first row already: the first arrow chooses it
        // instead of passing it by.
        if ((key == Qt::Key_Down || key == Qt::Key_Up) && list->currentItem() != nullptr &&
            list->selectedItems().isEmpty()) {
            list->currentItem()->setSelected(true);
            return true;
        }
    }
    return GameWindow::eventFilter(watched, event);
}

void frmLocGame::reject()
{
    name->clear();
    GameWindow::reject();
}

} // namespace torvenhall
