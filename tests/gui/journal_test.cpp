// Every window, dialog and box in a new life's first moment: title, picture,
// captions without a name, controls by name; and what comes (->) of a click on
// each menu item and button, whose purchases are made in a rich life.

#include <QComboBox>
#include <QFile>
#include <QMenu>
#include <QMenuBar>

#include "support/journal.h"
#include "support/play.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/pictures.h"
#include "ui/windows.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Journal : Play {
    /// The key of the picture behind a window, whose pixels show between panels.
    static QString PictureOf(const QWidget& window)
    {
        const QImage shown = window.findChild<QWidget*>()->grab().toImage(); // its scene
        for (const char* key :
             {"HARD", "SOFT", "HAPPY", "WORK", "HOSP", "SHOP", "EDUC", "NET", "VIRUS"}) {
            const QImage picture =
                LoadPicture(std::string(key) + "PICTURE", shown.size(), 1).toImage();
            int same = 0;
            for (int i = 0; i < shown.width() * shown.height(); ++i) {
                const QPoint place(i % shown.width(), i / shown.width());
                same += shown.pixel(place) == picture.pixel(place) ? 1 : 0;
            }
            if (same * 20 > shown.width() * shown.height()) {
                return QString(", picture ") + key;
            }
        }
        return {};
    }

    static QString DescribeControl(const QWidget& control)
    {
        QString text = control.property("text").toString().replace('\n', '/').remove('&');
        const auto* choice = qobject_cast<const QComboBox*>(&control);
        for (int i = 0; choice && i < choice->count(); ++i) {
            text += choice->itemText(i) + (i == choice->currentIndex() ? "* " : " ");
        }
        const auto* button = dynamic_cast<const GameButton*>(&control);
        const QString spoken = control.accessibleName();
        const QString told = control.accessibleDescription().replace('\n', '/');
        return "  " + QString(control.metaObject()->className()).mid(1) + ' ' +
               control.objectName() + (text.isEmpty() ? QString() : " \"" + text + '"') +
               (spoken.isEmpty() ? QString() : ", spoken \"" + spoken + '"') +
               (button && button->IsMuted() ? ", out of reach" : "") +
               (button && !told.isEmpty() ? ", told \"" + told + '"' : QString()) +
               (control.property("readOnly").toBool() ? ", read only" : "") +
               (control.isEnabledTo(control.window()) ? "" : ", disabled") +
               (control.isVisibleTo(control.window()) ? "" : ", hidden");
    }

    /// A window's title and picture, the captions without a name, and its
    /// controls, each with what comes of a click on it.
    QStringList Describe(const QWidget& window)
    {
        QStringList captions{"  captions"}, controls;
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            const QString name = each->objectName(), text = TextOf(*each);
            if (name.isEmpty() || name.startsWith("qt_")) {
                captions << (text.isEmpty() ? QStringList() : QStringList{text});
            } else if (!controls.isEmpty() && controls.last().endsWith(" \"" + text + '"')) {
                controls.last().insert(8, name + ", "); // a label and its shadow
            } else {
                controls << DescribeControl(*each) + outcomes[window.objectName() + name];
            }
        }
        const QString title = window.objectName() + " \"" + window.windowTitle() + '"';
        return QStringList{"", title + PictureOf(window), captions.join(" | ")} + controls;
    }

    /// What a click in a new life's first moment opens or changes.
    QString After(const std::function<void()>& click)
    {
        Start();
        player.reacts = false;
        GameState.HardComm = GameState.SoftBrowser = 1;
        ShowLabel(Label::lblGameLevel, "");
        ShowLabel(Label::lblGameSpeed, "");
        click();
        QString found = Shown(Label::lblGameLevel) + Shown(Label::lblGameSpeed);
        for (const QString& name : OpenWindows()) {
            found += name == "frmMain" ? "" : name + " \"" + Find(name)->windowTitle() + '"';
        }
        return " -> " + (found.isEmpty() ? "nothing" : found);
    }

    /// Tries every button of a window in a life that can afford all of them.
    void BuyIn(const WindowRow& row)
    {
        Start();
        player.reacts = false;
        Assign("Money=10000");
        if (row.name != window::frmHard && row.name != window::frmEducation) {
            Assign("Intelligence=100 Education=8 SoftOS=3 HardCPU=6 HardRAM=6 HardVideo=6 "
                   "HardHDD=6 HardCDROM=6 HardComm=6 HardSound=6 HardScanner=6 HardPrinter=3");
        }
        const Game rich = GameState;
        Do([&row] { Windows().OpenWindow(row.name); });
        for (QPushButton* button : Find(Text(row.name))->findChildren<QPushButton*>()) {
            GameState = rich;
            QString& outcome = outcomes[Text(row.name) + button->objectName()];
            const QString offered = TextOf(*button);
            Click(*button);
            const QString changed = Text(ChangedFields(rich));
            if (!changed.isEmpty()) {
                outcome = " -> " + changed;
                outcome += TextOf(*button) == offered ? "" : ", \"" + TextOf(*button) + '"';
            }
        }
        EXPECT_TRUE(player.boxes.isEmpty() && !Find(Text(row.name)));
    }

    /// The items of all menus, each with what comes of a click on it.
    QStringList Menus()
    {
        QStringList lines;
        for (const QAction* menu : Main().menuBar()->actions()) {
            lines << "  menu \"" + menu->text() + '"';
            for (const QAction* item : menu->menu()->actions()) {
                const QString text = item->isSeparator() ? "---" : '"' + item->text() + '"';
                const QString key = item->shortcut().toString();
                lines << "    " + item->objectName() + ' ' + text +
                             (key.isEmpty() ? "" : ' ' + key);
            }
        }
        for (QString& line : lines) {
            const QString item = line.simplified().section(' ', 0, 0);
            const bool opens = item != "menu" && !line.endsWith("---");
            line += opens ? After([&item] { Choose(item); }) : "";
        }
        return lines;
    }

    std::map<QString, QString> outcomes; ///< by the window's and the control's names
};

TEST_F(Journal, OfEveryWindowIsAsListed)
{
    for (const WindowRow& row : WindowTable()) {
        if (row.button) {
            const auto open = [&row] { Click("frmMain", row.button); };
            outcomes[QString("frmMain") + row.button] = After(open);
        }
        if (row.button && !row.open) {
            BuyIn(row);
        }
    }
    const QStringList menus = Menus();
    Start();
    Texts found{"# In a new life's first moment; -> is what comes of a click."};
    ForEachWindow([&](QWidget& window) {
        for (const QString& line :
             Describe(window) + (&window == &Main() ? menus : QStringList())) {
            found.push_back(Utf8(QString(line).replace(folder.path(), "FOLDER")));
        }
    });
    ExpectKept("windows.txt", found);
}

TEST_F(Journal, HelpItemsAndTheAboutBoxStartTheirOwnPrograms)
{
    // given an editor and a system-information tool that tell how they were started
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    const std::string started = Utf8(Folder() + "started");
    ReplaceFile(started, "");
    for (const char* program : {"xdg-open", "hardinfo", "License.txt", "Readme.txt"}) {
        ReplaceFile(Utf8(Folder() + program),
                    "#!/bin/sh\necho ${0##*/} ${1##*/} >>\"${0%/*}/started\"\n");
        QFile::setPermissions(Folder() + program, QFile::ReadOwner | QFile::ExeOwner);
    }
    std::string expected;
    for (const auto& [item, line] : {std::pair{"mnuhelpReadme", "xdg-open Readme.txt\n"},
                                     {"mnuHelpEULA", "xdg-open License.txt\n"},
                                     {"mnuHelpAbout", "hardinfo\n"}}) {
        Choose(item);
        if (Find("frmAbout")) {
            Click("frmAbout", "Command2");
        }
        expected += line;
        EXPECT_TRUE(Until([&] { return ReadWholeFile(started) == expected; })) << expected;
    }
    qputenv("PATH", path);
}
