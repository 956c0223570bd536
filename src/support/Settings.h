#pragma once

#include "platform/UserDefaults.h"

#include <QList>
#include <QString>
#include <optional>

/**
 * The settings of the program: their keys, each with the type it is read as, and the store that holds them. A default
 * is registered only where the table in Settings.cpp gives one; what has none reads as absent, false or 0.
 */
namespace settings {

inline const QString filenameTemplate = QStringLiteral("filenameTemplate");                 // list of records
inline const QString separatorChar = QStringLiteral("separatorChar");                       // text
inline const QString dateFormat = QStringLiteral("dateFormat");                             // strftime format
inline const QString strictNaming = QStringLiteral("strictNaming");                         // boolean
inline const QString templateLocation = QStringLiteral("templateLocation");                 // path
inline const QString selectedProjectTemplate = QStringLiteral("selectedProjectTemplate");   // template name
inline const QString defaultTemplate = QStringLiteral("defaultTemplate");                   // template name
inline const QString autoOpenFolder = QStringLiteral("autoOpenFolder");                     // on when not 0
inline const QString autoQuit = QStringLiteral("autoQuit");                                 // on when not 0
inline const QString useFixedProjectLocation = QStringLiteral("useFixedProjectLocation");   // on when equal to 1
inline const QString fixedProjectLocationPath = QStringLiteral("fixedProjectLocationPath"); // path
inline const QString autoExpandFolders = QStringLiteral("autoExpandFolders");               // on when not 0
inline const QString firstRun = QStringLiteral("firstRun");                                 // boolean
inline const QString requireAdminPassword = QStringLiteral("requireAdminPassword");         // on when equal to 1
inline const QString requireAdminPasswordForPrefs = QStringLiteral("requireAdminPasswordForPrefs");     // the same
inline const QString requireAdminPasswordForEditing = QStringLiteral("requireAdminPasswordForEditing"); // the same
inline const QString templateListWidth = QStringLiteral("templateListWidth"); // pixels: the list beside the tree
inline const QString webAddresses = QStringLiteral("webAddresses"); // dictionary: page name to address, see HelpPages

/** A setting that a person may read and change from outside the window. */
struct Known
{
    enum class Type { Text, Path, Switch, Boolean, Separator, DateFormat };
    QString key;
    Type type;
    const char *meaning; ///< in a few words; to be translated in the context "Settings"
    bool isProtection;   ///< machine-wide; switching it off needs an administrator
};
[[nodiscard]] const QList<Known> &known();
/** The value as it is stored, from what was typed. Nothing, with one sentence, when it is not one of the type. */
[[nodiscard]] std::optional<QVariant> valueFromText(const Known &setting, const QString &text, QString &problem);

/** The one store of this process, on com.vantrel.Tessaro.plist in the user's and the machine's preferences folder. */
[[nodiscard]] platform::UserDefaults &standard();

/** Registers the defaults of the table; the parameter list comes from the bundle's resource Filename_Defaults. */
void registerDefaults();

} // namespace settings
