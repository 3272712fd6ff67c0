#pragma once

#include "Support/FilePanels.h"

#include <optional>
#include <vector>

namespace testsupport {

/// Panels that answer at once, and remember what they were asked.
class FakeFilePanels final : public brisklet::FilePanels {
public:
    QCoro::Task<std::optional<QUrl>> openMovie() override {
        ++openCount;
        co_return toOpen;
    }

    QCoro::Task<std::optional<QUrl>> saveMovie(brisklet::SaveProposal proposal) override {
        proposals.push_back(proposal);
        co_return toSave;
    }

    std::optional<QUrl> toOpen;
    std::optional<QUrl> toSave;
    int openCount = 0;
    std::vector<brisklet::SaveProposal> proposals;
};

} // namespace testsupport
