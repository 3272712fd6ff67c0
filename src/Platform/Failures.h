#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace brisklet {

/// Collects what fails of several steps that are all to be taken.
class Failures final {
public:
    /// Takes one step; what it throws is kept.
    template<typename Step>
    void in(Step step) {
        try {
            step();
        } catch (const std::exception& error) {
            m_sentences += (m_sentences.empty() ? "" : "; ") + std::string(error.what());
        }
    }

    /// Throws std::runtime_error with everything that failed, in one line; does nothing where
    /// nothing did.
    void throwAny() const {
        if (!m_sentences.empty())
            throw std::runtime_error(m_sentences);
    }

private:
    std::string m_sentences;
};

} // namespace brisklet
