#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "ui/widgets/choicebutton.h"
#include "ui/widgets/gamewindow.h"
#include "ui/widgets/strip.h"

namespace torvenhall
{

/// A place in town: its picture, a slogan, at the left a list of choices,
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
        bool learning = false; ///< the strip shows education and status too
    };
    ActivityWindow(const Plan& plan, QWidget* parent);

    /// Loads the picture, as the last step of the derived window's loading.
    void Load() override;
    void LabelChanged(Label label) override;

protected:
    struct Row {
        QString name, caption;
        Glyph glyph;
    };
    /// How the rows stand: from the strip up to what they need, under a caption
    /// (which may be empty). Measures in units.
    struct List {
        QString caption;
        QString captionName;
        double width; ///< of the panel: its longest row
        double rowHeight = 27;
        double gap = 3;
        Type type = TextType(13); ///< in which the longest row fits
    };
    /// What the rules say of a choice at this moment.
    struct Standing {
        Badge badge = Badge::None;
        QString explanation;
        std::vector<Effect> effects;
    };

    /// Adds the choices; their deeds are the caller's (SetDeed).
    void AddChoices(const List& list, const std::vector<Row>& rows);
    /// Adds one choice at a place of its own.
    ChoiceButton& AddChoice(const Row& row, const QRectF& place);
    /// What a click on a choice does in the rules.
    void SetDeed(std::size_t index, std::function<void()> deed);
    ChoiceButton& Choice(std::size_t index) { return *choices[index]; }
    std::size_t Choices() const { return choices.size(); }
    /// Asked at every loading and after every change of what the main window
    /// shows.
    virtual Standing StandingOf(std::size_t /*index*/) const { return {}; }

private:
    void RefreshChoices();
    void RefreshSoon();
    void Foresee();

    static constexpr std::size_t Nobody = static_cast<std::size_t>(-1);

    std::string_view pictureKey;
    double height;
    Strip* strip;
    std::vector<ChoiceButton*> choices;
    std::size_t attended = Nobody; ///< the choice that the player has turned to
    bool refreshDue = false;
};

} // namespace torvenhall
