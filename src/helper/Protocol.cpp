#include "helper/Protocol.h"

namespace helper {
namespace {

constexpr std::size_t lengthSize = 4;
constexpr std::size_t headSize = 1 + 4 + 4 + 1;

void putNumber(std::string &bytes, std::uint32_t number)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift & 0xFF));
}

std::uint32_t numberAt(const std::string &bytes, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
}

bool isKnown(unsigned char type)
{
    return type >= static_cast<unsigned char>(MessageType::Ready) &&
           type <= static_cast<unsigned char>(MessageType::Ended);
}

/// One whole message without its length. False when it is not exactly one.
bool parse(const std::string &body, Message &message)
{
    if (body.size() < headSize || !isKnown(static_cast<unsigned char>(body[0])))
        return false;
    message.type = static_cast<MessageType>(body[0]);
    message.id = numberAt(body, 1);
    message.status = static_cast<std::int32_t>(numberAt(body, 5));
    const std::size_t count = static_cast<unsigned char>(body[9]);
    message.texts.clear();
    std::size_t at = headSize;
    for (std::size_t i = 0; i < count; ++i) {
        if (i >= maximumTexts || body.size() - at < lengthSize)
            return false;
        const std::size_t length = numberAt(body, at);
        at += lengthSize;
        if (length > body.size() - at)
            return false;
        message.texts.push_back(body.substr(at, length));
        if (message.texts.back().find('\0') != std::string::npos)
            return false;
        at += length;
    }
    return at == body.size();
}

} // namespace

std::optional<std::string> encode(const Message &message)
{
    std::string body(1, static_cast<char>(message.type));
    putNumber(body, message.id);
    putNumber(body, static_cast<std::uint32_t>(message.status));
    body.push_back(static_cast<char>(message.texts.size()));
    for (const std::string &text : message.texts) {
        if (text.size() > maximumSize || text.find('\0') != std::string::npos)
            return std::nullopt;
        putNumber(body, static_cast<std::uint32_t>(text.size()));
        body += text;
    }
    if (message.texts.size() > maximumTexts || body.size() > maximumSize)
        return std::nullopt;
    std::string whole;
    putNumber(whole, static_cast<std::uint32_t>(body.size()));
    return whole + body;
}

Decoder::Result Decoder::next(Message &message)
{
    if (m_broken || m_bytes.size() < lengthSize)
        return m_broken ? Result::Broken : Result::Incomplete;
    const std::size_t length = numberAt(m_bytes, 0);
    m_broken = length > maximumSize;
    if (!m_broken && m_bytes.size() - lengthSize < length)
        return Result::Incomplete;
    m_broken = m_broken || !parse(m_bytes.substr(lengthSize, length), message);
    if (m_broken) {
        m_bytes.clear();
        return Result::Broken;
    }
    m_bytes.erase(0, lengthSize + length);
    return Result::Complete;
}

} // namespace helper
