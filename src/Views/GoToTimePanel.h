#pragma once

#include "Views/Sheet.h"

#include <memory>
#include <optional>

class QLabel;
class QLineEdit;

namespace brisklet {

class EditState;

/// A field for a time, an offset or a frame's number (TimeEntry). Enter moves the playhead there
/// and closes it; what cannot be understood or does not exist is told under the field. Escape
/// closes it. Deletes itself when closed, as it is when another video is loaded. Main thread.
class GoToTimePanel final : public Sheet {
    Q_OBJECT

public:
    GoToTimePanel(std::shared_ptr<EditState> state, QWidget* window);

    [[nodiscard]] QLineEdit& field() const { return *m_field; }

    /// Under the field: what can be typed, or why it is refused.
    [[nodiscard]] QLabel& message() const { return *m_message; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildLayout();
    void go();
    /// Gives the reason why it could not.
    std::optional<QString> moveTo(const QString& text);
    std::optional<QString> moveToTime(double seconds);
    std::optional<QString> moveByFrames(qint64 count);
    std::optional<QString> moveToFrame(qint64 number);
    void showHint();
    void showRefusal(const QString& reason);
    void showMessage(const QString& text);
    void showLook();

    std::shared_ptr<EditState> m_state;
    QLineEdit* m_field;
    QLabel* m_message;
    bool m_isRefused = false;
};

} // namespace brisklet
