#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace brisklet {

/// Runs several independent steps and collects their failures.
class Failures final {
public:
    /// Runs one step and keeps the exception that it throws.
    template<typename Step>
    void in(Step step) {
        try {
            step();
        } catch (const std::exception& error) {
            m_sentences += (m_sentences.empty() ? "" : "; ") + std::string(error.what());
        }
    }

    /// Throws std::runtime_error with all failures in one line; does nothing if there are none.
    void throwAny() const {
        if (!m_sentences.empty())
            throw std::runtime_error(m_sentences);
    }

private:
    std::string m_sentences;
};

} // namespace brisklet
