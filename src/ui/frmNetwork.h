#pragma once

#include <array>

#include "ui/widgets/activitywindow.h"

class QTextEdit;

namespace torvenhall
{

class LineLights;
class WaitMark;

/// The dial-up network: the Internet with its three sites on the left, the
/// bulletin board on the right. The lines live in the rules; the window shows
/// them, also after it was closed and opened again.
class frmNetwork : public ActivityWindow
{
public:
    static constexpr int Sites = 3;

    explicit frmNetwork(QWidget* parent);

    void Load() override;

private:
    void ShowLines();
    void BuildInternet();
    void BuildSites();
    void BuildBoard();
    QWidget* AddSite(int location, const QRectF& place);
    GameButton* AddCommand(const char* name, const QString& caption, const QRectF& place,
                           QWidget* panel, void (*command)());
    GameLabel* AddText(const char* name, const QString& text, const QRectF& place, QWidget* panel,
                       double height);
    /// Shows one site panel; -1 hides all.
    void ShowSite(int location);
    void ShowAnecdote();
    void ShowLine(GameLabel* status, const std::string& text, WaitMark* mark, bool waits);

    bool pictureLoaded = false;
    GameButton *inetDial, *bbsDial, *download;
    GameLabel *inetStatus, *bbsStatus;
    LineLights* lights;
    WaitMark *inetMark, *bbsMark;
    QWidget *internet, *bulletin;
    std::array<QWidget*, Sites> sites{};
    QTextEdit* anecdote = nullptr;
};

} // namespace torvenhall
