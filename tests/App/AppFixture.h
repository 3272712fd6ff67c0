#pragma once

#include "Activation.h"
#include "BriskletApp.h"
#include "Models/EditState.h"
#include "QtSupport/EventPump.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"
#include "WindowRootView.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace brisklet {

/// The program inside the test, without a session bus.
class AppFixture : public testing::Test {
protected:
    /// Lets what is still loading come to its end, so that nothing of it outlives the test.
    ~AppFixture() override {
        if (m_app)
            stopExports();
        m_app.reset();
        waitForWorkers();
        testsupport::pumpPending();
    }

    void stopExports() {
        for (WindowRootView* window : m_app->windows())
            window->state()->cancelExport();
        testsupport::pumpUntil([this] {
            return std::ranges::none_of(m_app->windows(), [](WindowRootView* window) {
                return window->state()->exportProgress().has_value();
            });
        });
    }

    static QUrl video(double seconds) {
        return urlOf(testsupport::makeFixture({.duration = seconds}).path);
    }

    /// A window that has the keyboard.
    WindowRootView* openWindow() {
        WindowRootView* window = m_app->openWindow();
        EXPECT_TRUE(testsupport::showActive(*window));
        return window;
    }

    static bool loadAndWait(WindowRootView& window, const QUrl& url) {
        window.state()->load(url);
        return testsupport::pumpUntil([&] { return window.state()->videoURL() == url; });
    }

    /// Starts an export that takes long enough to look at.
    bool startLongExport(WindowRootView& window, const char* name = "out.mp4") {
        const auto source =
            testsupport::makeFixture({.duration = 30, .width = 640, .height = 480}).path;
        if (!loadAndWait(window, urlOf(source)))
            return false;
        window.state()->exportTo(urlOf(m_folder / name));
        return window.state()->exportProgress().has_value();
    }

    static QMessageBox* visibleQuestion(const WindowRootView& window) {
        for (auto* box : window.findChildren<QMessageBox*>()) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }

    static void clickRole(QMessageBox& box, QMessageBox::ButtonRole role) {
        for (QAbstractButton* button : box.buttons()) {
            if (box.buttonRole(button) == role) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "There is no such button.";
    }

    testsupport::TemporaryFolder m_folder;
    std::unique_ptr<BriskletApp> m_app = std::make_unique<BriskletApp>();
};

} // namespace brisklet
