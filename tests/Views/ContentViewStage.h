#pragma once

#include "Models/EditStateFixture.h"
#include "TestSupport/TemporaryFolder.h"
#include "Views/ContentView.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

#include <memory>

namespace brisklet {

/// The content of one window on the screen, with a model of its own.
class ContentViewStage : public EditStateFixture {
protected:
    ContentViewStage() {
        m_content->resize(960, 640);
        m_content->show();
        m_content->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_content.get()));
    }

    ~ContentViewStage() override {
        state().cancelExport();
        testsupport::pumpUntil([this] { return !state().exportProgress(); });
    }

    template<typename T>
    T* shown() const {
        for (T* child : m_content->findChildren<T*>()) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    /// Drops as another program does: over the window first, then let go.
    bool drop(const QMimeData& data) {
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({10, 10}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_content.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({10, 10}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(m_content.get(), &drop);
        m_dropAction = drop.dropAction();
        return drop.isAccepted();
    }

    bool drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        return drop(data);
    }

    bool hasVideo(const std::filesystem::path& path) {
        return testsupport::pumpUntil([this, &path] { return state().videoURL() == urlOf(path); });
    }

    testsupport::TemporaryFolder m_folder;
    /// What the last drop told the other side to do with its file.
    Qt::DropAction m_dropAction = Qt::IgnoreAction;
    std::unique_ptr<ContentView> m_content = std::make_unique<ContentView>(m_state);
};

} // namespace brisklet
