#include "game/programs.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core/waits.h"
#include "system/basSystem.h"

namespace torvenhall
{

namespace
{

void TellMissing(const std::string& text)
{
    MsgBox(text, "Ошибка", Icon::Critical);
}

/// The first opens whatever editor the player has chosen for texts.
constexpr std::array<std::string_view, 9> Editors{
    "xdg-open", "gnome-text-editor", "gedit", "kate", "kwrite", "mousepad",
    "xed",      "featherpad",        "pluma"};

constexpr std::array<std::string_view, 7> SystemInformationTools{
    "kinfocenter",          "hardinfo2",           "hardinfo",
    "gnome-system-monitor", "mate-system-monitor", "plasma-systemmonitor",
    "xfce4-taskmanager"};

std::string FirstFound(std::span<const std::string_view> names)
{
    for (const std::string_view name : names) {
        if (std::string found = Windows().FindProgram(name); !found.empty()) {
            return found;
        }
    }
    return {};
}

/// The editor that belongs to the system, in the system's own folder.
void OpenInSystemEditor(const std::string& folder, const std::string& path)
{
    const std::string editor = folder + "Notepad.exe";
    if (!IsDirectory(folder)) {
        TellMissing("Директория '" + folder + "' не найдена!!!");
    } else if (!FileExists(editor)) {
        TellMissing("Файл '" + editor + "' не найден!!!");
    } else if (!Windows().StartProgram(editor, {path})) {
        TellMissing("Файл '" + editor + "' не найден!!!");
    }
}

void OpenInEditor(const std::string& path)
{
    if (const std::string folder = GetWindowsDir(); !folder.empty()) {
        OpenInSystemEditor(AddBackslash(folder), path);
    } else if (const std::string editor = FirstFound(Editors); !editor.empty()) {
        Windows().StartProgram(editor, {path});
    } else {
        TellMissing("Файл '" + std::string(Editors.front()) + "' не найден!!!");
    }
}

/// The tool that the system's settings name, or else the first found of the
/// desktop's.
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
    return FirstFound(SystemInformationTools);
}

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
    if (tool.empty() || !Windows().StartProgram(tool, {})) {
        MsgBox("System Information Is Unavailable At This Time", "General Error", Icon::Critical);
    }
}

} // namespace torvenhall
