// What every window shows in a new life, and what every button and menu item
// of the main window opens, against the list in tests/data/windows.txt.

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

#include "resources/basLangMGR.h"
#include "support/play.h"
#include "ui/frmLang.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/pictures.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Journal : Play {
    /// The key of the picture behind a window, whose pixels show between panels.
    static QString PictureOf(const QWidget& window)
    {
        const QImage shown = window.findChild<QWidget*>()->grab().toImage(); // its scene
        for (const char* key :
             {"MAIN", "HARD", "SOFT", "HAPPY", "WORK", "HOSP", "SHOP", "EDUC", "NET", "VIRUS"}) {
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

    static QString Describe(const QWidget& control)
    {
        QString text = control.property("text").toString().replace('\n', '/').remove('&');
        const auto* choice = qobject_cast<const QComboBox*>(&control);
        for (int i = 0; choice && i < choice->count(); ++i) {
            text += choice->itemText(i) + (i == choice->currentIndex() ? "* " : " ");
        }
        const auto* button = dynamic_cast<const GameButton*>(&control);
        const QString spoken = control.accessibleName();
        return "  " + QString(control.metaObject()->className()).mid(1) + ' ' +
               control.objectName() + (text.isEmpty() ? QString() : " \"" + text + '"') +
               (spoken.isEmpty() ? QString() : ", spoken \"" + spoken + '"') +
               (button && button->IsMuted() ? ", too dear" : "") +
               (control.property("readOnly").toBool() ? ", read only" : "") +
               (control.isEnabledTo(control.window()) ? "" : ", disabled") +
               (control.isVisibleTo(control.window()) ? "" : ", hidden");
    }

    /// A window's title and picture, the captions without a name, and its controls.
    static QStringList Describe(const QWidget& window, const std::map<QString, QString>& opens)
    {
        QStringList captions, controls;
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            const QString name = each->objectName(), text = TextOf(*each);
            if (name.isEmpty() || name.startsWith("qt_")) {
                captions << (text.isEmpty() ? QStringList() : QStringList{text});
            } else if (!controls.isEmpty() && controls.last().endsWith(" \"" + text + '"')) {
                controls.last().insert(8, name + ", "); // a label and its shadow
            } else {
                const auto opened = opens.find(name);
                controls << Describe(*each) + (opened == opens.end() ? "" : opened->second);
            }
        }
        QStringList lines{"", window.objectName() + " \"" + window.windowTitle() + '"' +
                                  PictureOf(window)};
        for (; !captions.isEmpty(); captions = captions.mid(12)) {
            lines << "  captions " + captions.mid(0, 12).join(" | ");
        }
        return lines + controls;
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

    QStringList Menus()
    {
        std::vector<std::pair<QString, QString>> lines; // and the item that each is about
        for (const QAction* menu : Main().menuBar()->actions()) {
            lines.emplace_back("  menu \"" + menu->text().remove('&') + '"', "");
            for (const QAction* item : menu->menu()->actions()) {
                const QString text = item->isSeparator() ? "---" : '"' + item->text() + '"';
                const QString key = item->shortcut().toString();
                lines.emplace_back("    " + item->objectName() + ' ' + text +
                                       (key.isEmpty() ? "" : ' ' + key),
                                   item->isSeparator() ? "" : item->objectName());
            }
        }
        QStringList found;
        for (const auto& [line, item] : lines) {
            found << line + (item.isEmpty() ? "" : After([name = item] { Choose(name); }));
        }
        return found;
    }
};

TEST_F(Journal, OfEveryWindowIsAsListed)
{
    std::map<QString, QString> opens;
    for (const QPushButton* button : Main().findChildren<QPushButton*>()) {
        opens[button->objectName()];
    }
    for (auto& [button, what] : opens) {
        what = After([name = button] { Click("frmMain", name); });
    }
    QStringList found, menus = Menus();
    Start();
    ForEachWindow([&](QWidget& window) {
        found += Describe(window, opens) + menus;
        opens.clear(); // which are the main window's, the first one
        menus.clear();
    });
    QFile list(TORVENHALL_TEST_DATA "windows.txt");
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    QStringList expected = QString::fromUtf8(list.readAll()).trimmed().split('\n'), differing;
    expected.removeIf([](const QString& line) { return line.startsWith('#'); });
    for (const QString& line : expected + found) {
        if (expected.count(line) != found.count(line)) {
            differing << (expected.count(line) ? "expected: " : "found:    ") + line;
        }
    }
    QFile written(QApplication::applicationDirPath() + "/windows.txt");
    ASSERT_TRUE(written.open(QIODevice::WriteOnly) && written.write(found.join('\n').toUtf8()));
    EXPECT_TRUE(found == expected) << differing.join('\n').toStdString()
                                   << "\nThe whole list is in " << written.fileName().toStdString();
}

TEST_F(Journal, HelpItemsAndTheAboutBoxStartTheirOwnPrograms)
{
    // given an editor and a system-information tool that tell how they were started
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    for (const char* program : {"xdg-open", "hardinfo", "License.txt", "Readme.txt"}) {
        QFile script(Folder() + program);
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho ${0##*/} ${1##*/} >>\"${0%/*}/started\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    QFile started(Folder() + "started");
    ASSERT_TRUE(started.open(QIODevice::ReadWrite));
    for (const auto& [item, line] : {std::pair{"mnuhelpReadme", "xdg-open Readme.txt\n"},
                                     {"mnuHelpEULA", "xdg-open License.txt\n"},
                                     {"mnuHelpAbout", "hardinfo\n"}}) {
        Choose(item);
        if (Find("frmAbout")) {
            Click("frmAbout", "Command2");
        }
        QByteArray said;
        EXPECT_TRUE(Until([&] { return (said += started.readAll()).endsWith('\n'); }));
        EXPECT_EQ(said, line);
    }
    qputenv("PATH", path);
}

TEST_F(Journal, AClickOnALanguageTellsAboutIt)
{
    QFile file(Folder() + "English.LNG");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[General]\nDescription=English\nCopyright=nobody\n");
    file.close();
    LangFiles() = {Utf8(file.fileName())};
    frmLang window(nullptr);
    window.show();
    auto& list = Control<QListWidget>("frmLang", "List1");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(list.item(0)->text(), "English");
    EXPECT_EQ(Control<QPlainTextEdit>("frmLang", "Text1").toPlainText(),
              "Description: English\nCopyright: nobody");
    LangFiles().clear();
}
