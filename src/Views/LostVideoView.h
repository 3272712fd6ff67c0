#pragma once

#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;

namespace brisklet {

class EditState;
class SymbolView;

/// In the place of the picture while the video is lost: why there is none, and a button to open the
/// video again. Hidden otherwise, and while an alert offers the same. Main thread.
class LostVideoView final : public QWidget {
    Q_OBJECT

public:
    LostVideoView(std::shared_ptr<EditState> state, QWidget* parent);
    ~LostVideoView() override;

    [[nodiscard]] QPushButton& openAgainButton() const { return *m_openAgain; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildLayout();
    void follow();
    void fitText();

    std::shared_ptr<EditState> m_state;
    SymbolView* m_symbol;
    QLabel* m_reason;
    QPushButton* m_openAgain;
};

} // namespace brisklet
