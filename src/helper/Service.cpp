#include "helper/Service.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <vector>

namespace helper {
namespace {

/// Tools at a time; further requests wait in the stream.
constexpr std::size_t mostTools = 8;
/// How long a tool may take to end when it is asked to, in looks of ten milliseconds: it takes away what it has made.
constexpr int looksBeforeKilling = 1000;
constexpr int looksAfterKilling = 100;
constexpr timespec tenMilliseconds{0, 10'000'000};

bool writeAll(int descriptor, const std::string &bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

void Service::run()
{
    bool open = send({MessageType::Ready, 0, 0, {}});
    while (open) {
        // A full house leaves requests unread, but hears all the same when the other end hangs up.
        const short wanted = m_tools.size() < mostTools ? POLLIN | POLLRDHUP : POLLRDHUP;
        std::vector<pollfd> watched{{m_input, wanted, 0}, {m_childSignals, POLLIN, 0}};
        for (const auto &[id, tool] : m_tools) {
            if (tool.errorOutput() >= 0)
                watched.push_back({tool.errorOutput(), POLLIN, 0});
        }
        if (poll(watched.data(), watched.size(), -1) < 0 && errno != EINTR)
            break;
        for (auto &[id, tool] : m_tools) {
            if (tool.errorOutput() >= 0)
                tool.readErrorOutput();
        }
        if ((watched[1].revents & POLLIN) != 0)
            open = collectEnded() && performWaiting();
        if ((watched[0].revents & (POLLRDHUP | POLLHUP | POLLERR | POLLNVAL)) != 0)
            break;
        if (open && (watched[0].revents & POLLIN) != 0)
            open = takeRequests();
    }
    endTools();
}

bool Service::takeRequests()
{
    std::array<char, 16384> piece;
    const ssize_t got = read(m_input, piece.data(), piece.size());
    if (got < 0)
        return errno == EINTR;
    m_decoder.add(piece.data(), static_cast<std::size_t>(got));
    return performWaiting() && got > 0;
}

/// As many of the requests that have been read as there is room for.
bool Service::performWaiting()
{
    Message request;
    while (m_tools.size() < mostTools) {
        const Decoder::Result result = m_decoder.next(request);
        if (result != Decoder::Result::Complete)
            return result == Decoder::Result::Incomplete;
        if (!perform(request))
            return false;
    }
    return true;
}

bool Service::perform(const Message &request)
{
    if (request.type != MessageType::Run || request.texts.empty() || m_tools.contains(request.id))
        return false;
    Plan plan;
    const std::vector<std::string> arguments(request.texts.begin() + 1, request.texts.end());
    int failure = prepare(request.texts.front(), arguments, m_home, plan);
    ToolProcess tool;
    if (failure == 0)
        failure = tool.start(plan, m_caller);
    if (failure != 0)
        return send({MessageType::Refused, request.id, failure, {}});
    m_tools.emplace(request.id, std::move(tool));
    return send({MessageType::Started, request.id, 0, {}});
}

bool Service::collectEnded()
{
    signalfd_siginfo ignored;
    while (read(m_childSignals, &ignored, sizeof ignored) > 0) {
    }
    for (auto at = m_tools.begin(); at != m_tools.end();) {
        int status = 0;
        if (waitpid(at->second.pid(), &status, WNOHANG) != at->second.pid()) {
            ++at;
            continue;
        }
        if (at->second.errorOutput() >= 0)
            at->second.readErrorOutput();
        const Message ended{MessageType::Ended, at->first, exitStatus(status), {at->second.errorText()}};
        at = m_tools.erase(at); // before anything can fail: its number is no longer its own
        if (!send(ended))
            return false;
    }
    return true;
}

bool Service::send(const Message &message) const
{
    Message sendable = message;
    for (std::string &text : sendable.texts)
        std::erase(text, '\0');
    const auto bytes = encode(sendable);
    return bytes && writeAll(m_output, *bytes);
}

void Service::endTools()
{
    for (int look = 0; !m_tools.empty() && look < looksBeforeKilling + looksAfterKilling; ++look) {
        for (const auto &[id, tool] : m_tools) {
            if (look == 0)
                tool.signal(SIGTERM);
            else if (look >= looksBeforeKilling)
                tool.signal(SIGKILL);
        }
        std::erase_if(m_tools, [](const auto &entry) {
            int status = 0;
            return waitpid(entry.second.pid(), &status, WNOHANG) == entry.second.pid();
        });
        if (!m_tools.empty())
            nanosleep(&tenMilliseconds, nullptr);
    }
}

} // namespace helper
