#pragma once

#include "Models/EditState.h"
#include "QtSupport/EventPump.h"
#include "QtSupport/FakeFilePanels.h"
#include "Support/FileUrl.h"
#include "Support/PlaybackSettings.h"
#include "Support/Workers.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace brisklet {

/// A model with a real player, and panels that answer.
class EditStateFixture : public testing::Test {
protected:
    EditStateFixture() {
        m_state->setFilePanels(m_panels);
        PlaybackSettings::shared().setLoopEnabled(false);
    }

    /// Lets what is still loading come to its end, so that nothing of it outlives the test.
    ~EditStateFixture() override {
        m_state.reset();
        waitForWorkers();
        testsupport::pumpPending();
    }

    EditState& state() { return *m_state; }

    media::Player& player() { return *m_state->playerController().player(); }

    /// Whether the video has been loaded, filmstrip included.
    bool loadAndWait(const std::filesystem::path& path) {
        bool isLoaded = false;
        const QObject context;
        QObject::connect(m_state.get(), &EditState::editBegan, &context, [&] { isLoaded = true; });
        m_state->load(urlOf(path));
        return testsupport::pumpUntil([&] { return isLoaded && !m_state->thumbnails().isEmpty(); });
    }

    /// Loads a video whose frames are numbered.
    bool loadAndWait(const testsupport::Recipe& recipe) {
        return loadAndWait(testsupport::makeFixture(recipe).path);
    }

    bool waitForError() {
        return testsupport::pumpUntil([this] { return m_state->errorMessage().has_value(); });
    }

    static std::filesystem::path soundOnly() {
        return testsupport::cachedMedia("song.m4a",
                                        {"-f", "lavfi", "-i", "sine=d=4", "-c:a", "aac"});
    }

    std::shared_ptr<testsupport::FakeFilePanels> m_panels =
        std::make_shared<testsupport::FakeFilePanels>();
    std::shared_ptr<EditState> m_state = std::make_shared<EditState>();
};

inline const testsupport::Recipe kTenSeconds{.duration = 10};
/// Two frames: less than the shortest range that the handles make.
inline const testsupport::Recipe kTwoFrames{.duration = 2.0 / 30, .audioTracks = 0};

} // namespace brisklet
