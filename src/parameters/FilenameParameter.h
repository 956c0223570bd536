#pragma once

#include <QList>
#include <QStringList>
#include <QVariantMap>

/** The keys of a parameter's record. */
namespace recordkey {
inline constexpr const char *title = "title";
inline constexpr const char *kind = "type";
inline constexpr const char *value = "val";
inline constexpr const char *defaultValue = "defaultVal";
inline constexpr const char *folder = "folder";
inline constexpr const char *savesHistory = "saveHistory";
inline constexpr const char *history = "history";
inline constexpr const char *required = "disallowEmpty";
inline constexpr const char *locked = "locked";
// Of what a value must be; earlier versions leave them alone.
inline constexpr const char *form = "form";                     ///< "number", "date" or "folder"
inline constexpr const char *pattern = "pattern";               ///< a regular expression for the whole value
inline constexpr const char *patternMessage = "patternMessage"; ///< what is said where it does not fit
inline constexpr const char *computed = "computed";             ///< the value's default, with tokens of others in it
inline constexpr const char *letterCase = "letterCase";         ///< "upper", "lower" or "title"
inline constexpr const char *maxLength = "maxLength";           ///< in characters
inline constexpr const char *several = "several";               ///< several of the choices
inline constexpr const char *outsideName = "outsideName";       ///< it does not enter the project's name
// Of a list as one template has it; never stored.
inline constexpr const char *ownOfTemplate = "ownOfTemplate";
inline constexpr const char *fixedByTemplate = "fixedByTemplate";
} // namespace recordkey

/**
 * One filename parameter: a record of the list stored under "filenameTemplate". A plain value. Keys that this program
 * does not know are kept; a missing key, or one of the wrong type, reads as false, 0 or empty.
 */
class FilenameParameter
{
public:
    enum class Kind { Text = 0, OtherText = 1, Counter = 2, Date = 3, UserName = 4, Choice = 5 };

    FilenameParameter() = default;
    explicit FilenameParameter(QVariantMap record)
        : m_record(std::move(record))
    {
    }

    [[nodiscard]] const QVariantMap &record() const { return m_record; }
    [[nodiscard]] QVariant entry(const QString &key) const { return m_record.value(key); }

    [[nodiscard]] QString title() const { return text(recordkey::title); }
    /** Unknown numbers are text. */
    [[nodiscard]] Kind kind() const;
    /** What enters the name. A number counts as its decimal text. */
    [[nodiscard]] QString value() const { return text(recordkey::value); }
    /** Whether the stored value is a text without a character, or there is none: what a required parameter may not be.
     */
    [[nodiscard]] bool isBlank() const;
    [[nodiscard]] bool hasDefaultValue() const { return m_record.contains(QLatin1String(recordkey::defaultValue)); }
    [[nodiscard]] QString defaultValue() const { return text(recordkey::defaultValue); }
    /** The comma-separated parts of the default value; empty when it is. */
    [[nodiscard]] QStringList choices() const;
    [[nodiscard]] bool beginsFolder() const { return flag(recordkey::folder); }
    /** Never in effect for choice lists. */
    [[nodiscard]] bool savesHistory() const { return kind() != Kind::Choice && flag(recordkey::savesHistory); }
    [[nodiscard]] bool isRequired() const { return flag(recordkey::required); }
    [[nodiscard]] bool isLocked() const;
    [[nodiscard]] QStringList history() const;
    [[nodiscard]] QString form() const { return text(recordkey::form); }
    [[nodiscard]] QString pattern() const { return text(recordkey::pattern); }
    [[nodiscard]] QString patternMessage() const { return text(recordkey::patternMessage); }
    /** Never in effect where the program fills in the value by itself, or choices are there. */
    [[nodiscard]] QString computed() const;
    [[nodiscard]] QString letterCase() const { return text(recordkey::letterCase); }
    /** 0: any. */
    [[nodiscard]] qsizetype maxLength() const;
    [[nodiscard]] bool takesSeveral() const { return kind() == Kind::Choice && flag(recordkey::several); }
    [[nodiscard]] bool isOutsideName() const { return flag(recordkey::outsideName); }
    [[nodiscard]] bool isFixedByTemplate() const { return flag(recordkey::fixedByTemplate); }
    [[nodiscard]] bool isOwnOfTemplate() const { return flag(recordkey::ownOfTemplate); }
    /** Date and user name are filled in by the program at every refresh. */
    [[nodiscard]] bool isAutomatic() const { return kind() == Kind::Date || kind() == Kind::UserName; }
    /** Counters and choice lists keep their last value across launches; so does what has a history. */
    [[nodiscard]] bool keepsValue() const { return kind() == Kind::Counter || kind() == Kind::Choice; }

    void setEntry(const QString &key, const QVariant &value) { m_record.insert(key, value); }
    void setValue(const QString &value) { setEntry(QLatin1String(recordkey::value), value); }
    void setHistory(const QStringList &history);
    void removeEntry(const QString &key) { m_record.remove(key); }
    void removeHistory() { m_record.remove(QLatin1String(recordkey::history)); }

    bool operator==(const FilenameParameter &) const = default;

private:
    [[nodiscard]] QString text(const char *key) const;
    [[nodiscard]] bool flag(const char *key) const;

    QVariantMap m_record;
};

using FilenameParameters = QList<FilenameParameter>;

/** The records of a stored list; what is no record is left out. Empty when the value is no list. */
[[nodiscard]] FilenameParameters parametersFromVariant(const QVariant &stored);
[[nodiscard]] QVariantList variantFromParameters(const FilenameParameters &parameters);

/** Definitions that somebody else decides, with a user's own values and memories: those of the parameter of the same
   title and kind, where it is not locked and the value is still among the choices. Pure. */
[[nodiscard]] FilenameParameters withOwnValues(FilenameParameters definitions, const FilenameParameters &own);
/** Definitions for others to use: values are the defaults, and nothing is remembered. Pure. */
[[nodiscard]] FilenameParameters withoutOwnValues(FilenameParameters parameters);
