#pragma once

#include "ui/roomlook.h"
#include "ui/widgets/scene.h"

namespace torvenhall
{

/// The surface of the main window: the player's room, as the life has made it.
/// While it lives its quiet life, small places of it move.
class RoomScene : public Scene
{
public:
    using Scene::Scene;

    /// Draws the room anew if the life has changed it.
    void Refresh();
    /// The next step of the quiet life.
    void Step() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void PaintBackground(QPainter& painter) override;

private:
    RoomLook look = PresentRoom();
    int step = 0;
};

} // namespace torvenhall
