#include "game/programs.h"

#include <array>
#include <string>
#include <vector>

#include "core/waits.h"
#include "system/basSystem.h"
#include "system/programs.h"

namespace torvenhall
{

namespace
{

void TellMissing(const std::string& text)
{
    MsgBox(text, "Ошибка", Icon::Critical);
}

#ifdef _WIN32

void OpenInEditor(const std::string& path)
{
    const std::string folder = AddBackslash(GetWindowsDir());
    const std::string editor = folder + "Notepad.exe";
    if (!IsDirectory(folder)) {
        TellMissing("Директория '" + folder + "' не найдена!!!");
    } else if (!FileExists(editor)) {
        TellMissing("Файл '" + editor + "' не найден!!!");
    } else {
        Windows().StartProgram(editor, {path});
    }
}

std::string SystemInformationTool()
{
    std::string tool;
    if (GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", tool)) {
        return tool;
    }
    if (GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", tool)) {
        tool += "\\MSINFO32.EXE";
        return FileExists(tool) ? tool : std::string{};
    }
    return {};
}

#else

template <std::size_t Count>
std::string FirstFound(const std::array<const char*, Count>& names)
{
    for (const char* name : names) {
        if (std::string found = FindProgram(name); !found.empty()) {
            return found;
        }
    }
    return {};
}

/// The first opens whatever editor the player has chosen for texts.
constexpr std::array Editors{"xdg-open", "gnome-text-editor", "gedit", "kate", "kwrite", "mousepad",
                             "xed",      "featherpad",        "pluma"};

constexpr std::array SystemInformationTools{
    "kinfocenter",          "hardinfo2",           "hardinfo",
    "gnome-system-monitor", "mate-system-monitor", "plasma-systemmonitor",
    "xfce4-taskmanager"};

void OpenInEditor(const std::string& path)
{
    const std::string editor = FirstFound(Editors);
    if (editor.empty()) {
        TellMissing("Файл '" + std::string(Editors.front()) + "' не найден!!!");
    } else {
        Windows().StartProgram(editor, {path});
    }
}

std::string SystemInformationTool()
{
    return FirstFound(SystemInformationTools);
}

#endif

} // namespace

void ShowLicence()
{
    const std::string path = ProgramDirectory() + "License.txt";
    if (!FileExists(path)) {
        TellMissing("Файл лицензионного соглашения '" + path + "' не найден или ошибка доступа!");
    } else {
        OpenInEditor(path);
    }
}

void ShowReadme()
{
    const std::string path = ProgramDirectory() + "Readme.txt";
    if (!FileExists(path)) {
        // The box names the licence's file, not the read-me's, on purpose.
        TellMissing("Файл справочной информации '" + ProgramDirectory() +
                    "License.txt' не найден или ошибка доступа!");
    } else {
        OpenInEditor(path);
    }
}

void StartSysInfo()
{
    const std::string tool = SystemInformationTool();
    if (tool.empty()) {
        MsgBox("System Information Is Unavailable At This Time", "General Error", Icon::Critical);
    } else {
        Windows().StartProgram(tool, {});
    }
}

} // namespace torvenhall
