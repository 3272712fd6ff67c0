#include "Support/LocalizedMessage.h"

#include "Support/FileNames.h"

#include <QCoreApplication>

#include <string>
#include <vector>

namespace brisklet {

namespace {

/// EHWPOISON of Linux.
constexpr int kLastErrorNumber = 133;

std::string sentence(const media::Failure& failure) {
    std::vector<std::string> arguments = failure.arguments;
    if (failure.cause)
        arguments.push_back(sentence(*failure.cause));
    // Names of files are among them.
    for (std::string& argument : arguments)
        argument = legible(QString::fromStdString(argument)).toStdString();
    const QString text =
        QCoreApplication::translate("media::Error", media::englishText(failure.kind));
    return media::filled(text.toStdString(), arguments);
}

} // namespace

QString localizedMessage(const std::exception& error) {
    const auto* const known = dynamic_cast<const media::Error*>(&error);
    return known != nullptr ? QString::fromStdString(sentence(known->failure()))
                            : QString::fromUtf8(error.what());
}

QString localizedReason(const std::error_code& error) {
    return QString::fromStdString(sentence(media::reasonOf(error.value())));
}

QString localizedReason(const QIODevice& file) {
    const QString text = file.errorString();
    // Qt keeps only the system's words for its number.
    for (int code = 1; code <= kLastErrorNumber; ++code) {
        if (qt_error_string(code) == text)
            return localizedReason(std::error_code(code, std::generic_category()));
    }
    return QString::fromStdString(sentence({media::ErrorKind::otherReason, {text.toStdString()}}));
}

} // namespace brisklet
