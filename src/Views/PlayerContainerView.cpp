#include "Views/PlayerContainerView.h"

#include "Media/Player.h"
#include "Views/PlayerLayerView.h"

#include <QVBoxLayout>

#include <utility>

namespace brisklet {

PlayerContainerView::PlayerContainerView(std::shared_ptr<media::Player> player, QWidget* parent)
    : QWidget(parent), m_layerView(new PlayerLayerView(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_layerView);
    m_layerView->setPlayer(std::move(player));
}

void PlayerContainerView::setPlayer(const std::shared_ptr<media::Player>& player) {
    if (!player || player != m_layerView->player())
        m_layerView->setPlayer(player);
}

} // namespace brisklet
