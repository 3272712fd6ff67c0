#pragma once

#include <QMessageBox>

namespace brisklet {

/// Tells the user what went wrong, over the window that it went wrong in. Modal to that window,
/// deletes itself when it is dismissed. Main thread.
class ErrorAlert final : public QMessageBox {
    Q_OBJECT

public:
    explicit ErrorAlert(QWidget* window);

    /// Text as it is: what looks like markup in the name of a file is not.
    void setMessage(const QString& message);
};

} // namespace brisklet
