#pragma once

#include <QWidget>

#include <memory>

namespace media {
class Player;
}

namespace media {
class Player;
}

namespace brisklet {

class PlayerLayerView;

/// Puts a window's player on screen; fills itself with one PlayerLayerView. Main thread.
class PlayerContainerView final : public QWidget {
    Q_OBJECT

public:
    explicit PlayerContainerView(std::shared_ptr<media::Player> player, QWidget* parent = nullptr);

    /// Shows `player` instead, unless it is the very player shown already: an unchanged player is
    /// never assigned again.
    void setPlayer(const std::shared_ptr<media::Player>& player);

    [[nodiscard]] PlayerLayerView& layerView() const { return *m_layerView; }

private:
    PlayerLayerView* m_layerView;
};

} // namespace brisklet
