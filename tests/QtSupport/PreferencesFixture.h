#pragma once

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace testsupport {

/// Gives each test preferences of its own, empty at first.
class PreferencesFixture : public testing::Test {
protected:
    PreferencesFixture() {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    }

    QString filePath() const { return m_folder.filePath(QStringLiteral("brisklet/brisklet.ini")); }

    /// What stands in the file now, read anew.
    QVariant stored(const QString& key) const {
        return QSettings(filePath(), QSettings::IniFormat).value(key);
    }

    void store(const QString& key, const QVariant& value) const {
        QSettings settings(filePath(), QSettings::IniFormat);
        settings.setValue(key, value);
        settings.sync();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace testsupport
