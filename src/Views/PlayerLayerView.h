#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace media {
class Player;
struct TimedImage;
} // namespace media

namespace brisklet {

/// Shows the current frame of one player: whole, centred, never stretched. Paints nothing else, so
/// what is behind shows beside the frame. Each pixel that the player delivers is one pixel of the
/// screen unless the picture is smaller than the view.
///
/// Main thread, except for present(). Keeps the player it shows alive; a player is shown by one
/// view.
class PlayerLayerView final : public QWidget {
    Q_OBJECT

public:
    explicit PlayerLayerView(QWidget* parent = nullptr);
    ~PlayerLayerView() override;

    [[nodiscard]] const std::shared_ptr<media::Player>& player() const { return m_player; }

    /// null shows nothing.
    void setPlayer(std::shared_ptr<media::Player> player);

    /// Rotates the picture clockwise, by a multiple of 90 degrees. Does not affect the player.
    [[nodiscard]] int rotation() const { return m_rotation; }

    void setRotation(int degrees);

    /// The part of the view that the picture covers, in the view's coordinates; empty without one.
    [[nodiscard]] QRectF videoRect() const;

    /// Shows a frame, as the player's video sink does; an image that is null shows nothing. Any
    /// thread.
    void present(const media::TimedImage& frame);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Sink;

    void announceSize();
    void takeFrame();

    std::shared_ptr<media::Player> m_player;
    int m_rotation = 0;
    /// The frame on screen.
    QImage m_image;
    /// The size last announced to the player, device pixels.
    QSize m_announcedSize;

    /// Takes the player's frames on their way from the media thread.
    std::unique_ptr<Sink> m_sink;
};

} // namespace brisklet
