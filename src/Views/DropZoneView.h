#pragma once

#include <QWidget>

#include <memory>

class QLabel;

namespace brisklet {

class EditState;
class SymbolView;

/// What an empty window shows: an invitation to drop a video, and a button to open one. Highlighted
/// while something that can be dropped is over the window. Main thread.
class DropZoneView final : public QWidget {
    Q_OBJECT

public:
    explicit DropZoneView(std::shared_ptr<EditState> state, QWidget* parent = nullptr);

    void setLit(bool isLit);

    [[nodiscard]] bool isLit() const { return m_isLit; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showFonts();

    SymbolView* m_symbol;
    QLabel* m_invitation;
    bool m_isLit = false;
};

} // namespace brisklet
