#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace testsupport {

/// The cases of a large matrix of tests: those that are always run, and the others.
template<typename Case>
struct Selection {
    std::vector<Case> representatives;
    /// To be instantiated under the name Exhaustive, which gives them that label.
    std::vector<Case> others;
};

/// Picks as few cases as will do for every feature to occur at least once, by taking again and
/// again the one with most features that no case has yet. `featuresOf` gives the names of what a
/// case stands for, such as "mp4" or "turned by 90". Both parts keep the order of `cases`.
template<typename Case, typename FeaturesOf>
Selection<Case> selectRepresentatives(const std::vector<Case>& cases, FeaturesOf featuresOf) {
    std::vector<std::set<std::string>> missing;
    std::ranges::transform(cases, std::back_inserter(missing), std::move(featuresOf));
    std::vector<bool> isTaken(cases.size());
    const auto size = [](const std::set<std::string>& features) { return features.size(); };
    for (auto best = std::ranges::max_element(missing, {}, size);
         best != missing.end() && !best->empty();
         best = std::ranges::max_element(missing, {}, size)) {
        isTaken[static_cast<std::size_t>(best - missing.begin())] = true;
        const std::set<std::string> features = *best;
        for (std::set<std::string>& others : missing)
            std::erase_if(others, [&](const auto& name) { return features.contains(name); });
    }
    Selection<Case> selection;
    for (std::size_t i = 0; i < cases.size(); ++i)
        (isTaken[i] ? selection.representatives : selection.others).push_back(cases[i]);
    return selection;
}

} // namespace testsupport
