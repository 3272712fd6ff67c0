#pragma once

#include "Support/FilePanels.h"

#include <functional>
#include <optional>
#include <vector>

namespace testsupport {

/// Panels that answer at once, and remember what they were asked.
class FakeFilePanels final : public brisklet::FilePanels {
public:
    QCoro::Task<std::optional<QUrl>> openMovie() override {
        ++openCount;
        // QCoro moves out of what is returned, even out of a member.
        std::optional<QUrl> answer = toOpen;
        co_return answer;
    }

    QCoro::Task<std::optional<QUrl>> saveMovie(brisklet::SaveProposal proposal) override {
        proposals.push_back(proposal);
        if (whileOpen)
            whileOpen();
        std::optional<QUrl> answer = toSave;
        co_return answer;
    }

    std::optional<QUrl> toOpen;
    std::optional<QUrl> toSave;
    /// What happens elsewhere while the save panel is on screen.
    std::function<void()> whileOpen;
    int openCount = 0;
    std::vector<brisklet::SaveProposal> proposals;
};

} // namespace testsupport
