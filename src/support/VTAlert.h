#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

class QWidget;
class AlertPresenter;

/**
 * Shows a question or a message and waits for the answer, from any thread. What shows it (a sheet on the window, lines
 * on the terminal) is the installed presenter's business; the code that asks does not know which.
 *
 * The presenter works on the main thread; the asking thread waits, the main thread by turning its event loop. The
 * answer is 1 for the default button, 0 for the alternate one, -1 for the other one.
 */
class VTAlert : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultReturn = 1;
    static constexpr int alternateReturn = 0;
    static constexpr int otherReturn = -1;
    enum class Block { No, Yes };

    /** Texts of one alert; a null button title means no such button, for the default button the desktop's own title. */
    struct Texts
    {
        QString messageText;
        QString informativeText;
        QString defaultButton = {};
        QString alternateButton = {};
        QString otherButton = {};
        /// Where an answer loses something: the one that loses nothing. Its button has the focus, and Escape presses
        /// it.
        std::optional<int> safeAnswer = {};
        bool isGoodNews = false; ///< that something was done: no warning
        QString choicesTitle = {};
        /// To pick one of, before the answer; the picked one's number is in `chosen` then, which begins with the first.
        QStringList choices = {};
        std::shared_ptr<int> chosen = {};
    };

    VTAlert() = default;

    /** Installs what shows alerts; not owned. Without one, every alert answers at once with its default button. */
    static void setPresenter(AlertPresenter *presenter);

    /** A message, or a question with its answer; blocks. Without a window it hangs on the main one. */
    static int show(const Texts &texts, QWidget *parentWindow = nullptr);
    static void alertSheetWithMessageText(const QString &messageText, const QString &informativeText,
                                          QWidget *parentWindow);
    static int alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                         const QString &alternateButton, const QString &otherButton,
                                         const QString &informativeText, QWidget *parentWindow, Block block);
    /** Delegate, selector and block are not passed on: every alert shown through this entry blocks. This must stay. */
    static int alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                         const QString &alternateButton, const QString &otherButton,
                                         const QString &informativeText, QWidget *parentWindow, QObject *delegate,
                                         const QByteArray &didEndSelector, Block block);
    /** Answers itself with the default button after the interval. */
    static int timedAlertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                              const QString &alternateButton, const QString &otherButton,
                                              const QString &informativeText, QWidget *parentWindow,
                                              std::chrono::seconds interval);
    /**
     * The core. The delegate, when given, is an object with an invokable method of the selector's name that takes
     * (VTAlert *, qlonglong returnCode, void *). Without it the alert is its own delegate. -1 at once when the
     * delegate lacks the method or when nothing is to be waited for. Takes ownership of the alert object.
     */
    static int alertSheet(const Texts &texts, QWidget *parentWindow, QObject *delegate,
                          const QByteArray &didEndSelector, Block block, VTAlert *alertObject);

    /** Main thread only: hands the texts to the presenter. Keys: messageText, defaultButtonTitle, alternateButtonTitle,
        otherButtonTitle, informativeText, didEndSelector, safeAnswer, isGoodNews; each optional. */
    void alertSheetWithDictionary(const QVariantMap &dictionary);
    Q_INVOKABLE void alertDidEnd(VTAlert *alert, qlonglong returnCode, void *contextInfo);
    /** Blocks for the interval on the calling thread, then ends the alert with the default button. */
    void defaultReturnAfterTimeInterval(std::chrono::seconds interval);

    [[nodiscard]] qlonglong returnCode() const { return m_returnCode; }
    [[nodiscard]] bool alertEnded() const { return m_alertEnded; }
    Texts m_choices; ///< of which only the choices are looked at
    [[nodiscard]] QWidget *parentWindow() const { return m_parentWindow; }

private:
    /** False when the delegate lacks the method; nothing is shown then. */
    bool present(const Texts &texts, QWidget *parentWindow);
    int showAndWait(const Texts &texts, QWidget *parentWindow);
    void end(qlonglong code);
    void waitUntilEnded();

    std::atomic<qlonglong> m_returnCode = otherReturn;
    std::atomic<bool> m_alertEnded = false; ///< set after the code, so that who sees it set also finds the code
    QPointer<QObject> m_delegate;
    QByteArray m_didEndSelector;
    QWidget *m_parentWindow = nullptr;
    bool m_freesItself = false; ///< nobody waits for it: it goes when it has been answered
};
