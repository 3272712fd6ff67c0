#pragma once

#include "Views/Sheet.h"

class QLabel;

namespace brisklet {

class SymbolView;

/// Tells the user what went wrong, over the window that it went wrong in. Modal to that window,
/// deletes itself when it is dismissed by its button or by Escape. Main thread.
class ErrorAlert final : public Sheet {
    Q_OBJECT

public:
    explicit ErrorAlert(QWidget* window);

    /// Text as it is: what looks like markup in the name of a file is not.
    void setMessage(const QString& message);

    [[nodiscard]] const QString& message() const { return m_message; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void showLook();

    SymbolView* m_symbol;
    QLabel* m_title;
    QLabel* m_text;
    QString m_message;
};

} // namespace brisklet
