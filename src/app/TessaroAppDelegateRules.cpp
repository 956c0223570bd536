// What the chosen template says beside its files: its parameters in the table, its rules with a project.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

using ReadRules = std::optional<platform::Result<TemplateRules>>;

/// On a thread: the library may be a share that takes its time. Rules that cannot be read are told of by the pane that
/// shows the result, and when a project is asked for.
void TessaroAppDelegate::followRules()
{
    const QString name = m_window->selectedTemplate();
    if (name.isEmpty() || m_rulesBeingRead.contains(name))
        return;
    m_rulesBeingRead.insert(name);
    const auto read = std::make_shared<ReadRules>();
    platform::performBeside([read, bundle = VTDataController::bundlePath(name)] { *read = readRules(bundle); },
                            [delegate = QPointer(this), name, read] {
                                if (!delegate)
                                    return;
                                delegate->m_rulesBeingRead.remove(name);
                                if (name == delegate->m_window->selectedTemplate() && !delegate->m_creating && **read)
                                    delegate->m_tableController->setScope(scopeOf(name, ***read));
                            });
}

/// Those of the template as they are now. What cannot be read is not taken for none, and parameters that nobody has
/// seen are not made a project of.
bool TessaroAppDelegate::takeRules(ProjectRequest &request)
{
    using Begun = platform::Result<studio::Use>;
    const auto use = platform::resultInBackground([] { return std::optional<Begun>(studio::useCopy()); });
    if (!*use) {
        VTAlert::show({tr("The studio’s templates are just being brought up to date"),
                       tr("Nothing was created. Please try again in a moment.")});
        return false;
    }
    request.use = **use;
    request.templateFiles = VTDataController::filesFolder(request.templateName); // of the library that now stays
    const ReadRules rules = platform::resultInBackground(
        [&] { return ReadRules(readRules(VTDataController::bundlePath(request.templateName))); });
    if (!*rules) {
        VTAlert::show(
            {tr("The template’s rules cannot be read"),
             withCause(tr("Nothing was created. The template pane shows what can be done."), rules->outcome())});
        return false;
    }
    request.rules = std::make_shared<const TemplateRules>(**rules);
    const ParameterScope scope = scopeOf(request);
    const ParameterScope &shown = m_tableController->scope();
    const bool isShown = scope == shown || (scope.isEmpty() && shown.isEmpty());
    if (!isShown) {
        m_tableController->setScope(scope);
        VTAlert::show({tr("The template has other parameters by now"),
                       tr("Nothing was created. Please look at the values again.")});
    }
    return isShown;
}
