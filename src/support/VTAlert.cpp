#include "support/VTAlert.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"
#include "platform/base/MainThread.h"
#include "platform/plain/StartedThread.h"
#include "support/AlertPresenter.h"

#include <QCoreApplication>
#include <QThread>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

using platform::MainThread;
using platform::Waiting;

namespace {

constexpr std::chrono::milliseconds mainThreadPoll{10};
constexpr std::chrono::seconds workerPoll{1};
constexpr const char *ownSelector = "alertDidEnd";

AlertPresenter *installedPresenter = nullptr;

/// Wakes waiting workers as soon as any alert ends; they look once a second all the same.
std::mutex endMutex;
std::condition_variable endCondition;

bool answers(const QObject *delegate, const QByteArray &selector)
{
    return delegate->metaObject()->indexOfMethod(selector + "(VTAlert*,qlonglong,void*)") >= 0;
}

void insertIfGiven(QVariantMap &dictionary, const char *key, const QString &text)
{
    if (!text.isNull())
        dictionary.insert(QLatin1String(key), text);
}

} // namespace

void VTAlert::setPresenter(AlertPresenter *presenter)
{
    installedPresenter = presenter;
}

int VTAlert::show(const Texts &texts, QWidget *parentWindow)
{
    return alertSheet(texts, parentWindow, nullptr, {}, Block::Yes, nullptr);
}

void VTAlert::alertSheetWithMessageText(const QString &messageText, const QString &informativeText,
                                        QWidget *parentWindow)
{
    alertSheetWithMessageText(messageText, {}, {}, {}, informativeText, parentWindow, nullptr, {}, Block::Yes);
}

int VTAlert::alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                       const QString &alternateButton, const QString &otherButton,
                                       const QString &informativeText, QWidget *parentWindow, Block block)
{
    return alertSheetWithMessageText(messageText, defaultButton, alternateButton, otherButton, informativeText,
                                     parentWindow, nullptr, {}, block);
}

int VTAlert::alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                       const QString &alternateButton, const QString &otherButton,
                                       const QString &informativeText, QWidget *parentWindow, QObject *,
                                       const QByteArray &, Block)
{
    return show({messageText, informativeText, defaultButton, alternateButton, otherButton}, parentWindow);
}

int VTAlert::timedAlertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                            const QString &alternateButton, const QString &otherButton,
                                            const QString &informativeText, QWidget *parentWindow,
                                            std::chrono::seconds interval)
{
    std::mutex mutex;
    std::condition_variable changed;
    bool answered = false;
    VTAlert alert;
    std::thread timer = platform::startedThread([&] {
        std::unique_lock lock(mutex);
        if (!changed.wait_for(lock, interval, [&] { return answered; }))
            alert.end(defaultReturn);
    });
    const int code =
        alert.showAndWait({messageText, informativeText, defaultButton, alternateButton, otherButton}, parentWindow);
    {
        const std::scoped_lock lock(mutex);
        answered = true;
        changed.notify_all();
    }
    if (timer.joinable())
        timer.join();
    return code;
}

int VTAlert::alertSheet(const Texts &texts, QWidget *parentWindow, QObject *delegate, const QByteArray &didEndSelector,
                        Block block, VTAlert *alertObject)
{
    std::unique_ptr<VTAlert> alert(alertObject ? alertObject : new VTAlert);
    alert->m_delegate = delegate;
    alert->m_didEndSelector = didEndSelector;
    if (block == Block::Yes)
        return alert->showAndWait(texts, parentWindow);
    // The sheet outlives this call: the alert goes when it has been answered.
    alert->m_freesItself = true;
    if (QCoreApplication::instance())
        alert->moveToThread(QCoreApplication::instance()->thread());
    if (VTAlert *shown = alert.get(); shown->present(texts, parentWindow))
        static_cast<void>(alert.release());
    return otherReturn;
}

bool VTAlert::present(const Texts &texts, QWidget *parentWindow)
{
    m_parentWindow = parentWindow;
    m_choices = texts; // a dictionary holds texts, and these are more
    if (!m_delegate)
        m_delegate = this;
    if (m_didEndSelector.isEmpty())
        m_didEndSelector = ownSelector;
    if (!answers(m_delegate, m_didEndSelector)) {
        platform::printToConsole(platform::formatString("Alert error: delegate does not respond to selector %@",
                                                        QString::fromLatin1(m_didEndSelector)));
        return false;
    }
    QVariantMap dictionary;
    insertIfGiven(dictionary, "messageText", texts.messageText);
    insertIfGiven(dictionary, "defaultButtonTitle", texts.defaultButton);
    insertIfGiven(dictionary, "alternateButtonTitle", texts.alternateButton);
    insertIfGiven(dictionary, "otherButtonTitle", texts.otherButton);
    insertIfGiven(dictionary, "informativeText", texts.informativeText);
    dictionary.insert(QStringLiteral("isGoodNews"), texts.isGoodNews);
    if (texts.safeAnswer)
        dictionary.insert(QStringLiteral("safeAnswer"), *texts.safeAnswer);
    insertIfGiven(dictionary, "didEndSelector", QString::fromLatin1(m_didEndSelector));
    MainThread::perform([this, dictionary] { alertSheetWithDictionary(dictionary); }, Waiting::Yes);
    return true;
}

int VTAlert::showAndWait(const Texts &texts, QWidget *parentWindow)
{
    if (!present(texts, parentWindow))
        return otherReturn;
    waitUntilEnded();
    MainThread::perform(
        [this] {
            if (installedPresenter)
                installedPresenter->orderOut(this);
        },
        Waiting::Yes);
    return static_cast<int>(m_returnCode);
}

void VTAlert::alertSheetWithDictionary(const QVariantMap &dictionary)
{
    if (!installedPresenter)
        return end(defaultReturn);
    const auto text = [&](const char *key) {
        return dictionary.value(QLatin1String(key)).toString();
    };
    const QVariant safe = dictionary.value(QStringLiteral("safeAnswer"));
    AlertPresenter::Sheet sheet{this,
                                text("messageText"),
                                text("informativeText"),
                                text("defaultButtonTitle"),
                                text("alternateButtonTitle"),
                                text("otherButtonTitle"),
                                safe.isValid() ? std::optional(safe.toInt()) : std::nullopt,
                                dictionary.value(QStringLiteral("isGoodNews")).toBool(),
                                m_parentWindow};
    sheet.choicesTitle = m_choices.choicesTitle;
    sheet.choices = m_choices.choices;
    sheet.chosen = m_choices.chosen;
    const QPointer<VTAlert> self(this);
    installedPresenter->present(sheet, [self](int code) {
        if (!self)
            return;
        if (!self->m_delegate)
            return self->end(code);
        const bool ownDelegate = self->m_delegate == self;
        QMetaObject::invokeMethod(self->m_delegate, self->m_didEndSelector.constData(), Qt::DirectConnection,
                                  Q_ARG(VTAlert *, self.data()), Q_ARG(qlonglong, code), Q_ARG(void *, nullptr));
        if (!ownDelegate && self)
            self->end(code);
    });
}

void VTAlert::alertDidEnd(VTAlert *, qlonglong returnCode, void *)
{
    end(returnCode);
}

void VTAlert::end(qlonglong code)
{
    const std::scoped_lock lock(endMutex);
    if (m_alertEnded) // a click and the timer may come at once: the first one counts
        return;
    m_returnCode = code;
    m_alertEnded = true;
    endCondition.notify_all();
    if (m_freesItself)
        deleteLater();
}

void VTAlert::defaultReturnAfterTimeInterval(std::chrono::seconds interval)
{
    std::this_thread::sleep_for(interval);
    end(defaultReturn);
}

void VTAlert::waitUntilEnded()
{
    if (MainThread::isCurrent() && QCoreApplication::instance()) {
        while (!m_alertEnded)
            MainThread::turnLoop(mainThreadPoll);
        return;
    }
    std::unique_lock lock(endMutex);
    while (!m_alertEnded)
        endCondition.wait_for(lock, workerPoll);
}
