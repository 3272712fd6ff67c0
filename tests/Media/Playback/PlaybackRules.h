#pragma once

#include "PlaybackRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The tick at which the frame of this number begins.
inline media::Ticks ticksOf(int frame) {
    return media::Ticks(frame * kFrameLength.count());
}

/// What the rules of playback take care of when things cross.
class PlaybackRules : public testing::Test {
protected:
    /// Plays from the frame on show, with nothing at hand but that.
    void playWithEmptyCache() {
        rig.cache.begin(rig.item.get());
        rig.state.setPlaying(true, rig.now);
        rig.present();
        rig.letSoundWork();
    }

    void stopStaleWork() {
        for (std::stop_source& work : rig.state.takeDeferredWork().staleWork)
            work.request_stop();
    }

    PlaybackRig rig;
};
