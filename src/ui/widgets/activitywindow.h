#pragma once

#include <string_view>
#include <vector>

#include "ui/widgets/gamewindow.h"

namespace torvenhall
{

/// A place in town: its picture, a slogan, a group of choices as wide buttons,
/// "Назад" at the bottom right, and beside it what the player has, live.
class ActivityWindow : public GameWindow
{
public:
    struct Plan {
        const char* name;
        QString caption;
        std::string_view pictureKey;
        double width = 560;
        double height = 420;
    };
    ActivityWindow(const Plan& plan, QWidget* parent);

    /// Loads the picture, as the last step of the derived window's loading.
    void Load() override;
    void LabelChanged(Label label) override;

protected:
    /// How the choices stand: in columns, from the bottom up to what they
    /// need, under a group caption (which may be empty).
    struct Group {
        QString caption;
        QString captionName;
        double width = 300;
        int columns = 1;
    };
    /// Adds the choices; their handlers are the caller's.
    void AddChoices(const Group& group,
                    const std::vector<std::pair<QString, QString>>& namedCaptions);
    GameButton& Choice(std::size_t index) { return *choices[index]; }
    /// Called when the player's money changes: which choices are out of reach.
    virtual void RefreshChoices() {}

private:
    void AddStrip();
    void AddStripItem(int index, const QString& caption, Label label);

    std::string_view pictureKey;
    double width, height;
    std::vector<GameButton*> choices;
    std::vector<std::pair<Label, GameLabel*>> strip;
};

} // namespace torvenhall
