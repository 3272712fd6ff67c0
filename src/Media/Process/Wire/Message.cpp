#include "Media/Process/Wire/Message.h"

#include <utility>

namespace media::process {

void MessageWriter::put(std::string_view text) {
    put(static_cast<std::uint32_t>(text.size()));
    m_message.bytes.append(text);
}

void MessageWriter::put(Descriptor descriptor) {
    m_message.descriptors.push_back(std::move(descriptor));
}

void MessageWriter::append(MessageWriter other) {
    m_message.bytes.append(other.m_message.bytes);
    for (Descriptor& descriptor : other.m_message.descriptors)
        m_message.descriptors.push_back(std::move(descriptor));
}

const char* MessageReader::take(std::size_t count) {
    if (count > m_message.bytes.size() - m_position)
        throw BadMessage();
    const char* const bytes = m_message.bytes.data() + m_position;
    m_position += count;
    return bytes;
}

bool MessageReader::getBool() {
    return getWithin<std::uint8_t>(0, 1) == 1;
}

std::string MessageReader::getText() {
    const auto size = get<std::uint32_t>();
    return {take(size), size};
}

Descriptor MessageReader::getDescriptor() {
    if (m_descriptor >= m_message.descriptors.size())
        throw BadMessage();
    return std::move(m_message.descriptors[m_descriptor++]);
}

void MessageReader::expectEnd() const {
    if (m_position != m_message.bytes.size() || m_descriptor != m_message.descriptors.size())
        throw BadMessage();
}

} // namespace media::process
