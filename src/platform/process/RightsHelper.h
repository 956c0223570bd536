#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

namespace platform {

/**
 * Administrator rights in hand: the privileged helper, running as root at the other end of a socket. While one exists
 * this process is not dumpable, so that no other process of the user can reach into it. Destroying it gives the rights
 * back; tools that still run are ended then.
 *
 * Thread-safe. The helper may die at any time; then every question about it is answered with "no" or an error at once.
 */
class RightsHelper
{
public:
    /** How a tool ended: what it was, its status (0 is success, 128 and more a signal) and what it said about it: why
       it failed, or what it could not keep. */
    struct ToolEnd
    {
        QString tool;
        int status = 0;
        QString errorText;
        [[nodiscard]] bool ok() const { return status == 0; }
    };
    /** Called on a thread of the helper's own, once for every tool that had something to say, also by the helper's end.
     */
    using Complaint = std::function<void(const ToolEnd &)>;

    /** A tool on its way, for waitFor(). */
    struct Ticket
    {
        int error = 0; ///< 0 when it was started, else an errno; EPIPE when the helper is gone
        quint32 number = 0;
    };

    /**
     * Asks for the rights through pkexec and blocks while the user is asked, as long as that takes. Nothing when they
     * were refused or dismissed, when there is nobody to ask, or no polkit on this machine. Whoever dismisses the
     * question knows why there are no rights; in the other cases somebody must say so.
     */
    [[nodiscard]] static std::shared_ptr<RightsHelper> start(Complaint complaint, bool *wasDismissed = nullptr);
    ~RightsHelper();
    RightsHelper(const RightsHelper &) = delete;
    RightsHelper &operator=(const RightsHelper &) = delete;

    /** Whether another tool can be started. */
    [[nodiscard]] bool isAlive() const;
    /** Whether the helper is gone, and with it all its tools. */
    [[nodiscard]] bool hasEnded() const;
    /** Gives the rights back now, whoever still holds this object. Blocks until the helper has let go. */
    void end();
    /** Gives the rights back as soon as the tools that run have ended; no other is started. Does not block. */
    void retire();
    /** The arguments with the links on the way to their last components resolved. To be done before anybody is asked:
       the helper goes through no link, so that what is exchanged for one later is refused. */
    [[nodiscard]] static QStringList withoutLinks(const QStringList &arguments);
    /** Blocks until the tool is started, which may take as long as others run. */
    [[nodiscard]] Ticket run(const QString &tool, const QStringList &arguments);
    /** Blocks until that tool has ended; each ticket once. */
    [[nodiscard]] ToolEnd waitFor(const Ticket &ticket);

    /** Where the helper lies: in the application's bundle. */
    [[nodiscard]] static QString path();

private:
    struct Private;
    explicit RightsHelper(std::unique_ptr<Private> d);
    std::unique_ptr<Private> d;
};

} // namespace platform
