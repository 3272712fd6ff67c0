#include "Media/Playback/DecoderShare.h"

#include "Media/Threading/Guarded.h"

#include <algorithm>
#include <list>
#include <utility>

namespace media::playback {

/// All shares of the process, the one used last first.
class DecoderShares {
public:
    /// Never destroyed: players that were left behind may outlive everything static.
    static Guarded<DecoderShares>& all() {
        static auto* const shares = new Guarded<DecoderShares>();
        return *shares;
    }

    void add(DecoderShare& share) { m_shares.push_back(&share); }

    void remove(DecoderShare& share) { m_shares.remove(&share); }

    void setBytesOfAll(std::size_t bytes) { m_bytesOfAll = bytes; }

    void use(DecoderShare& share, std::size_t bytes) {
        letGo(share);
        share.m_bytes = bytes;
        m_shares.splice(m_shares.begin(), m_shares, std::ranges::find(m_shares, &share));
        // The one used last keeps what it has, however much that is.
        std::size_t sum = bytes;
        for (DecoderShare* other : m_shares) {
            if (other == &share)
                continue;
            sum += other->m_bytes;
            if (sum > m_bytesOfAll && other->m_bytes > 0 &&
                !other->m_isTooMuch.exchange(true, std::memory_order_relaxed))
                other->m_wake();
        }
    }

    static void letGo(DecoderShare& share) {
        share.m_bytes = 0;
        share.m_isTooMuch.store(false, std::memory_order_relaxed);
    }

private:
    std::list<DecoderShare*> m_shares;
    std::size_t m_bytesOfAll = DecoderShare::kBytesOfAll;
};

DecoderShare::DecoderShare(std::function<void()> wake) : m_wake(std::move(wake)) {
    DecoderShares::all().lock()->add(*this);
}

DecoderShare::~DecoderShare() {
    DecoderShares::all().lock()->remove(*this);
}

void DecoderShare::use(std::size_t bytes) {
    DecoderShares::all().lock()->use(*this, bytes);
}

void DecoderShare::letGo() {
    DecoderShares::all().lock()->letGo(*this);
}

void DecoderShare::setBytesOfAll(std::size_t bytes) {
    DecoderShares::all().lock()->setBytesOfAll(bytes);
}

} // namespace media::playback
