#include "Platform/Updater/UpdateDialogs.h"

#include "Support/MainThread.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr int kProgressWidth = 320;
constexpr QSize kNotesSize(440, 220);
constexpr int kSpacing = 12;
constexpr int kMargin = 20;
/// The bar counts in thousandths, since its range is too small for bytes.
constexpr int kBarSteps = 1000;

QLabel* plainLabel(const QString& text) {
    auto* label = new QLabel(text);
    // Text from the feed must not be interpreted as markup.
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* headline(const QString& text) {
    QLabel* label = plainLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QVBoxLayout* layoutOf(QDialog& dialog) {
    auto* layout = new QVBoxLayout(&dialog);
    layout->setSpacing(kSpacing);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    return layout;
}

QPlainTextEdit* notesView(const QString& notes) {
    auto* view = new QPlainTextEdit(notes);
    view->setReadOnly(true);
    view->setMinimumSize(kNotesSize);
    return view;
}

} // namespace

UpdateDialogs::~UpdateDialogs() {
    delete m_dialog;
}

void UpdateDialogs::askForAutomaticChecks(std::function<void(bool)> answer) {
    auto* box =
        new QMessageBox(QMessageBox::Question, tr("Updates"),
                        tr("Check for updates automatically?"), QMessageBox::Yes | QMessageBox::No);
    box->setInformativeText(tr("Brisklet can look once a day whether there is a new version. You "
                               "can also check from its menu."));
    QObject::connect(box, &QDialog::finished, box,
                     [answer](int result) { answer(result == QMessageBox::Yes); });
    present(box);
}

void UpdateDialogs::showChecking(std::function<void()> cancel) {
    showProgress(tr("Checking for updates…"), std::move(cancel));
    m_bar->setRange(0, 0);
}

void UpdateDialogs::showUpToDate(const QString& currentVersion) {
    showMessage(tr("You’re up to date."),
                tr("Brisklet %1 is the newest version available.").arg(currentVersion));
}

void UpdateDialogs::showUpdate(const AppcastItem& item, const QString& currentVersion,
                               std::function<void(UpdateChoice)> answer) {
    auto* dialog = new QDialog;
    dialog->setWindowTitle(tr("Update"));
    auto* buttons = new QDialogButtonBox;
    QPushButton* install = buttons->addButton(tr("Install Update"), QDialogButtonBox::AcceptRole);
    QPushButton* later = buttons->addButton(tr("Remind Me Later"), QDialogButtonBox::RejectRole);
    QPushButton* skip =
        buttons->addButton(tr("Skip This Version"), QDialogButtonBox::DestructiveRole);
    install->setDefault(true);
    const auto choice = std::make_shared<UpdateChoice>(UpdateChoice::remindLater);
    QObject::connect(install, &QPushButton::clicked, dialog, [dialog, choice] {
        *choice = UpdateChoice::install;
        dialog->accept();
    });
    QObject::connect(skip, &QPushButton::clicked, dialog, [dialog, choice] {
        *choice = UpdateChoice::skipThisVersion;
        dialog->reject();
    });
    QObject::connect(later, &QPushButton::clicked, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::finished, dialog, [choice, answer] { answer(*choice); });

    QVBoxLayout* layout = layoutOf(*dialog);
    layout->addWidget(headline(tr("A new version of Brisklet is available.")));
    //: %1: the new version; %2: the one that is installed.
    layout->addWidget(plainLabel(tr("Brisklet %1 is here; you have %2. Do you want to install it?")
                                     .arg(item.shortVersion, currentVersion)));
    if (!item.releaseNotes.isEmpty())
        layout->addWidget(notesView(item.releaseNotes), 1);
    layout->addWidget(buttons);
    present(dialog);
}

void UpdateDialogs::showDownload(const AppcastItem& item, std::function<void()> cancel) {
    m_expectedBytes = item.length;
    showProgress(tr("Downloading Brisklet %1…").arg(item.shortVersion), std::move(cancel));
    m_bar->setRange(0, kBarSteps);
}

void UpdateDialogs::showDownloaded(qint64 bytes) {
    verifyMainThread();
    if (m_bar && m_expectedBytes > 0)
        m_bar->setValue(static_cast<int>(bytes * kBarSteps / m_expectedBytes));
}

void UpdateDialogs::showFailure(const QString& message) {
    showMessage(tr("The update didn’t work."), message);
}

void UpdateDialogs::showMessage(const QString& title, const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Information, tr("Updates"), title, QMessageBox::Ok);
    box->setInformativeText(text);
    for (QLabel* label : box->findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    present(box);
}

void UpdateDialogs::showProgress(const QString& text, std::function<void()> cancel) {
    auto* dialog = new QDialog;
    dialog->setWindowTitle(tr("Updates"));
    m_bar = new QProgressBar;
    m_bar->setTextVisible(false);
    m_bar->setMinimumWidth(kProgressWidth);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::rejected, dialog, std::move(cancel));
    QVBoxLayout* layout = layoutOf(*dialog);
    layout->addWidget(headline(text));
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    present(dialog);
}

void UpdateDialogs::present(QDialog* dialog) {
    verifyMainThread();
    dismiss();
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(false);
    // The program may quit while this is its only window.
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    dialog->show();
}

void UpdateDialogs::dismiss() {
    verifyMainThread();
    if (!m_dialog)
        return;
    // A dialog that is closed this way must not report an answer.
    QDialog* dialog = std::exchange(m_dialog, nullptr);
    dialog->disconnect();
    dialog->hide();
    dialog->deleteLater();
}

bool UpdateDialogs::openPackage(const QString& file) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

} // namespace brisklet
