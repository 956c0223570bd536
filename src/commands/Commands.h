#pragma once

class Invocation;

/** What the verbs do, one file for each family. Each returns the exit status; what went wrong is on standard error
 * then. */
namespace commands {

int create(const Invocation &invocation);
int check(const Invocation &invocation);
int cleanUp(const Invocation &invocation);
int history(const Invocation &invocation);
int undo(const Invocation &invocation);

int listTemplates(const Invocation &invocation);
int newTemplate(const Invocation &invocation);
int duplicateTemplate(const Invocation &invocation);
int renameTemplate(const Invocation &invocation);
int removeTemplate(const Invocation &invocation);
int defaultTemplate(const Invocation &invocation);
int showTemplate(const Invocation &invocation);
int templateRules(const Invocation &invocation);
int importTemplates(const Invocation &invocation);
int exportTemplate(const Invocation &invocation);
int importStructure(const Invocation &invocation);
int restoreTemplates(const Invocation &invocation);

int listParameters(const Invocation &invocation);
int addParameter(const Invocation &invocation);
int setParameter(const Invocation &invocation);
int moveParameter(const Invocation &invocation);
int removeParameter(const Invocation &invocation);
int exportParameters(const Invocation &invocation);
int importParameters(const Invocation &invocation);
int clearHistory(const Invocation &invocation);

int listSettings(const Invocation &invocation);
int getSetting(const Invocation &invocation);
int setSetting(const Invocation &invocation);
int unsetSetting(const Invocation &invocation);

int showSetup(const Invocation &invocation);
int useSetup(const Invocation &invocation);
int leaveSetup(const Invocation &invocation);
int exportSetup(const Invocation &invocation);

int showLog(const Invocation &invocation);
int gatherLogs(const Invocation &invocation);
int checkForUpdates(const Invocation &invocation);

int help(const Invocation &invocation);
int version(const Invocation &invocation);
int printManualPage(const Invocation &invocation);
/** What a shell offers, a line each: names of templates, titles of parameters, a parameter's values. */
int printWords(const Invocation &invocation);
int printCompletion(const Invocation &invocation);

} // namespace commands
