#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/**
 * What the application and its privileged helper say to each other: messages with their length before them, over one
 * stream. Everything in a message is bounded, because one end of the stream is root's and must not trust the other.
 */
namespace helper {

enum class MessageType : std::uint8_t {
    Ready = 1,   ///< helper: it is there and has the rights
    Run = 2,     ///< application: run a tool; texts are its path and its arguments
    Started = 3, ///< helper: the tool of that number has been started
    Refused = 4, ///< helper: it was not; status is an errno
    Ended = 5,   ///< helper: it has ended; status as a shell gives it, the text is its error output
};

struct Message
{
    MessageType type = MessageType::Ready;
    std::uint32_t id = 0; ///< given by the application, repeated in the answers
    std::int32_t status = 0;
    std::vector<std::string> texts;
    bool operator==(const Message &) const = default;
};

constexpr std::size_t maximumTexts = 8;
/// Bytes of one message without its length: two paths of any sensible depth.
constexpr std::size_t maximumSize = std::size_t{128} * 1024;

/** With the length before it; nothing when it breaks a bound or a text holds a zero byte. */
[[nodiscard]] std::optional<std::string> encode(const Message &message);

/** Takes the stream in pieces of any size and gives whole messages. Once Broken, always Broken. */
class Decoder
{
public:
    enum class Result { Incomplete, Complete, Broken };

    void add(const char *bytes, std::size_t count) { m_bytes.append(bytes, count); }
    [[nodiscard]] Result next(Message &message);

private:
    std::string m_bytes;
    bool m_broken = false;
};

} // namespace helper
