#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/UserDefaults.h"

#include <QList>
#include <QString>
#include <optional>

/**
 * The settings of the program: one row each, with the key, what it is, when it counts as on, where it is kept, its
 * default and its meaning. Who needs a value asks the row, which knows how it is read; who takes one from a person, in
 * the window or on the command line, asks checked(), so that both take and refuse the same. Any thread.
 */
namespace settings {

enum class Type {
    Text,
    Path,         ///< a folder's whole path
    PathOrNone,   ///< the same, or nothing
    TemplateName, ///< a template of the library
    Switch,       ///< a number; on as the row says
    Boolean,
    Separator,  ///< between values: nothing that a folder's name cannot hold, at most ten characters
    DateFormat, ///< strftime(3)
    Program,    ///< an executable file's whole path; empty: none
    Seconds,    ///< whole ones, from 1 to an hour
    Number,
    Value, ///< anything else
};
/** When a switch counts as on. */
enum class On { WhenNotZero, WhenOne };
/** Machine-wide settings protect something: switching one off needs an administrator. */
enum class Scope { User, Machine };

struct Setting
{
    const char *key;
    Type type;
    const char *meaning = nullptr;    ///< in a few words, in the context "Settings"; null: nothing for people to set
    QVariant (*standard)() = nullptr; ///< the registered default; null: reads as absent, off or 0
    Scope scope = Scope::User;
    On on = On::WhenNotZero;

    operator QString() const { return QLatin1String(key); } // NOLINT: a row stands for its key

    [[nodiscard]] QVariant value() const;
    /** As it is; checked() comes before, where a person typed it. Machine-wide where the row says so. */
    platform::Outcome store(const QVariant &value) const;
    /** A value of the user's that depends on what it was; see UserDefaults::changeValue(). */
    platform::Outcome change(const platform::UserDefaults::Change &change) const;
    /** The default applies again. */
    platform::Outcome reset() const;
    /** Whether the studio, or the machine-wide file, decides it: then it cannot be changed here. */
    [[nodiscard]] bool isLocked() const;
};

struct TextSetting : Setting
{
    [[nodiscard]] QString text() const;
};
struct SwitchSetting : Setting
{
    [[nodiscard]] bool isOn() const;
    platform::Outcome turn(bool wanted) const;
    /** As it is stored. */
    [[nodiscard]] QVariant valueFor(bool wanted) const;
};
struct NumberSetting : Setting
{
    [[nodiscard]] qlonglong number() const;
};

// Their rows are in Settings.cpp.
extern const Setting filenameTemplate;      ///< the parameters: a list of records
extern const Setting studioParameterValues; ///< the list as the studio has it, for this user's values in it
extern const Setting ownParameterValues; ///< dictionary: of a template's own parameters, by its name and their titles
extern const TextSetting separatorChar;
extern const TextSetting dateFormat;
extern const SwitchSetting strictNaming;
extern const TextSetting templateLocation;
extern const TextSetting sharedSetup; ///< the studio's folder; see studio::
extern const TextSetting selectedProjectTemplate;
extern const TextSetting defaultTemplate;
extern const SwitchSetting autoOpenFolder;
extern const SwitchSetting autoQuit;
extern const SwitchSetting useFixedProjectLocation;
extern const TextSetting fixedProjectLocationPath;
extern const SwitchSetting autoExpandFolders;
extern const TextSetting afterCreation;          ///< the program that is told of each project
extern const NumberSetting afterCreationSeconds; ///< how long it may take
extern const SwitchSetting firstRun;
extern const SwitchSetting requireAdminPassword;
extern const SwitchSetting requireAdminPasswordForEditing;
extern const SwitchSetting requireAdminPasswordForPrefs;
extern const Setting recentLocations;         ///< where projects were created: a list of folders, the latest first
extern const Setting pinnedLocations;         ///< the ones that somebody wants to keep at hand
extern const Setting mainWindowPlace;         ///< where it was and how large, in the toolkit's own form
extern const Setting preferencesPlace;        ///< the same
extern const SwitchSetting showRules;         ///< beside a template's tree, the rules of its items
extern const SwitchSetting showResult;        ///< beside the parameters, what will be made
extern const NumberSetting templateListWidth; ///< pixels: the list beside the tree
extern const Setting webAddresses;            ///< dictionary: page name to address, see HelpPages
extern const Setting launch;                  ///< date of the last launch
extern const Setting exit;                    ///< date of the last clean exit

/** All rows, in the order in which they are listed. */
[[nodiscard]] const QList<const Setting *> &all();
/** Null when there is none of the key, or none for people. */
[[nodiscard]] const Setting *forPeople(const QString &key);
[[nodiscard]] QString meaningOf(const Setting &setting);

/** What a rule may need to know beside the value. */
struct Facts
{
    QStringList templates; ///< names in the library
};
/**
 * The value as it is stored, from what a person typed; Cause::Invalid, with one sentence that says what to do, when it
 * is none of the setting's. A path is looked at on the disk.
 */
[[nodiscard]] platform::Result<QVariant> checked(const Setting &setting, const QString &typed, const Facts &facts = {});
/** The same for a value of the kind on its own. */
[[nodiscard]] platform::Result<QVariant> checkedAs(Type type, const QString &typed);

/** "Set by your studio": beside whatever is locked. */
[[nodiscard]] QString lockedText();

/** The one store of this process, on com.vantrel.Tessaro.plist in the user's and the machine's preferences folder. */
[[nodiscard]] platform::UserDefaults &standard();

/** Whether machine-wide settings that this process stores hold for every user; else they are this user's own. */
[[nodiscard]] bool holdForEveryUser();

/** The file of the user's domain. */
[[nodiscard]] QString userFile();

/** Registers the rows' defaults; the parameter list comes from the bundle's resource Filename_Defaults. */
void registerDefaults();

} // namespace settings
