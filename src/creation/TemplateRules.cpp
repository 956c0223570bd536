#include "creation/TemplateRules.h"

#include "platform/base/NativePath.h"
#include "templates/RuleFile.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <array>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TemplateRules)
};

constexpr qlonglong version = 1;

namespace key {
const QString version = QStringLiteral("version");
const QString fillNames = QStringLiteral("fillNames");
const QString texts = QStringLiteral("texts");
const QString items = QLatin1String(rulefile::items);
const QString path = QLatin1String(rulefile::path);
const QString when = QStringLiteral("when");
const QString all = QStringLiteral("all");
const QString any = QStringLiteral("any");
const QString parameter = QStringLiteral("parameter");
const QString is = QStringLiteral("is");
const QString value = QStringLiteral("value");
const QString repeat = QStringLiteral("repeat");
const QString numbers = QStringLiteral("count");
const QString values = QStringLiteral("values");
const QString as = QStringLiteral("as");
const QString text = QStringLiteral("text");
const QString parameters = QStringLiteral("parameters");
const QString fixed = QStringLiteral("fixed");
const QString hidden = QStringLiteral("hidden");
} // namespace key

struct KindEntry
{
    Condition::Is is;
    const char *word;
    const char *name;
};
constexpr std::array kinds{
    KindEntry{Condition::Is::Is, "is", QT_TRANSLATE_NOOP("TemplateRules", "is")},
    KindEntry{Condition::Is::IsNot, "isNot", QT_TRANSLATE_NOOP("TemplateRules", "is not")},
    KindEntry{Condition::Is::Contains, "contains", QT_TRANSLATE_NOOP("TemplateRules", "contains")},
    KindEntry{Condition::Is::IsEmpty, "isEmpty", QT_TRANSLATE_NOOP("TemplateRules", "is empty")},
    KindEntry{Condition::Is::IsNotEmpty, "isNotEmpty", QT_TRANSLATE_NOOP("TemplateRules", "is not empty")},
    KindEntry{Condition::Is::IsGreater, "isGreater", QT_TRANSLATE_NOOP("TemplateRules", "is greater than")},
};

const KindEntry &entryOf(Condition::Is is)
{
    return *std::find_if(kinds.begin(), kinds.end(), [&](const KindEntry &entry) { return entry.is == is; });
}

/// The first thing that is wrong, with where: everything is read to the end all the same.
class Reader
{
public:
    explicit Reader(QString where)
        : m_where(std::move(where))
    {
    }

    bool flag(QVariantMap &map, const QString &name) { return take(map, name, {QMetaType::Bool}).toBool(); }
    QString text(QVariantMap &map, const QString &name) { return take(map, name, {QMetaType::QString}).toString(); }
    QVariantMap dictionary(QVariantMap &map, const QString &name)
    {
        return take(map, name, {QMetaType::QVariantMap}).toMap();
    }
    QVariantList list(QVariantMap &map, const QString &name)
    {
        return take(map, name, {QMetaType::QVariantList}).toList();
    }
    QStringList texts(QVariantMap &map, const QString &name)
    {
        QStringList found;
        for (const QVariant &entry : list(map, name)) {
            if (entry.typeId() == QMetaType::QString)
                found.append(entry.toString());
            else
                complain(Text::tr("“%1” holds something that is no text").arg(name));
        }
        return found;
    }
    QList<QVariantMap> dictionaries(QVariantMap &map, const QString &name)
    {
        QList<QVariantMap> found;
        for (const QVariant &entry : list(map, name)) {
            if (entry.typeId() == QMetaType::QVariantMap)
                found.append(entry.toMap());
            else
                complain(Text::tr("“%1” holds something that is no dictionary").arg(name));
        }
        return found;
    }
    void complain(const QString &problem)
    {
        if (m_problem.isNull())
            m_problem = m_where.isEmpty() ? problem : m_where + QStringLiteral(": ") + problem;
    }
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    QVariant take(QVariantMap &map, const QString &name, const QList<QMetaType::Type> &types)
    {
        if (!map.contains(name))
            return {};
        const QVariant value = map.take(name);
        if (!types.contains(static_cast<QMetaType::Type>(value.typeId())))
            complain(Text::tr("“%1” is not of the right kind").arg(name));
        return value;
    }

    QString m_where;
    QString m_problem;
};

Condition conditionFrom(QVariantMap stored, Reader &reader)
{
    Condition condition{reader.text(stored, key::parameter)};
    const QString word = reader.text(stored, key::is);
    const auto *entry = std::find_if(kinds.begin(), kinds.end(),
                                     [&](const KindEntry &kind) { return word == QLatin1String(kind.word); });
    if (entry == kinds.end())
        reader.complain(
            Text::tr("“%1” is no condition; there are: is, isNot, contains, isEmpty, isNotEmpty, isGreater").arg(word));
    else
        condition.is = entry->is;
    condition.value = reader.text(stored, key::value);
    if (condition.parameter.isEmpty())
        reader.complain(Text::tr("a condition names no parameter"));
    return condition;
}

Conditions conditionsFrom(QVariantMap stored, Reader &reader)
{
    Conditions conditions;
    conditions.join = stored.contains(key::any) ? Conditions::Join::Any : Conditions::Join::All;
    const QString &name = conditions.join == Conditions::Join::Any ? key::any : key::all;
    for (const QVariantMap &test : reader.dictionaries(stored, name))
        conditions.tests.append(conditionFrom(test, reader));
    if (!stored.isEmpty())
        reader.complain(Text::tr("“when” takes “all” or “any”, not “%1”").arg(stored.firstKey()));
    return conditions;
}

Repeat repeatFrom(QVariantMap stored, Reader &reader)
{
    Repeat repeat;
    const bool isOverValues = stored.contains(key::values);
    repeat.over = isOverValues ? Repeat::Over::Values : Repeat::Over::Numbers;
    repeat.parameter = reader.text(stored, isOverValues ? key::values : key::numbers);
    if (stored.contains(key::as))
        repeat.name = reader.text(stored, key::as);
    if (repeat.parameter.isEmpty())
        reader.complain(Text::tr("“repeat” names no parameter: {\"count\": TITLE} or {\"values\": TITLE}"));
    if (repeat.name.isEmpty() || repeat.name.contains(u'{') || repeat.name.contains(u'}') ||
        repeat.name.contains(u':') || repeat.name.contains(u'|'))
        reader.complain(Text::tr("“%1” cannot be the name of a repeat").arg(repeat.name));
    if (!stored.isEmpty())
        reader.complain(Text::tr("“repeat” takes “count” or “values”, and “as”, not “%1”").arg(stored.firstKey()));
    return repeat;
}

/// A path that leads out of Files names no item.
bool isPathInside(const QString &path)
{
    const QStringList names = path.split(u'/');
    return std::none_of(names.begin(), names.end(),
                        [](const QString &name) { return name.isEmpty() || name == u"." || name == u".."; });
}

ItemRule itemFrom(QVariantMap stored, int number, QString &problem)
{
    ItemRule rule{rulefile::pathOf(stored)};
    Reader reader(Text::tr("Item %1 (%2)").arg(number).arg(platform::forOneLine(rule.path)));
    stored.remove(key::path);
    if (!isPathInside(rule.path))
        reader.complain(Text::tr("its path names no item of the template"));
    if (stored.contains(key::when))
        rule.when = conditionsFrom(reader.dictionary(stored, key::when), reader);
    if (stored.contains(key::repeat))
        rule.repeat = repeatFrom(reader.dictionary(stored, key::repeat), reader);
    rule.fillsText = reader.flag(stored, key::text);
    rule.rest = stored;
    if (problem.isNull())
        problem = reader.problem();
    return rule;
}

QVariantMap variantOf(const ItemRule &rule)
{
    QVariantMap stored = rulefile::withPath(rule.rest, rule.path);
    if (!rule.when.tests.isEmpty()) {
        QVariantList tests;
        for (const Condition &condition : rule.when.tests) {
            QVariantMap test{{key::parameter, condition.parameter}, {key::is, wordOf(condition.is)}};
            if (!condition.value.isEmpty())
                test.insert(key::value, condition.value);
            tests.append(test);
        }
        stored.insert(key::when, QVariantMap{{rule.when.join == Conditions::Join::Any ? key::any : key::all, tests}});
    }
    if (rule.repeat.over != Repeat::Over::Nothing) {
        QVariantMap repeat{
            {rule.repeat.over == Repeat::Over::Values ? key::values : key::numbers, rule.repeat.parameter}};
        if (rule.repeat.name != Repeat::usualName)
            repeat.insert(key::as, rule.repeat.name);
        stored.insert(key::repeat, repeat);
    }
    if (rule.fillsText)
        stored.insert(key::text, true);
    return stored;
}

QVariantList variantOf(const QStringList &texts)
{
    QVariantList list;
    for (const QString &text : texts)
        list.append(text);
    return list;
}

} // namespace

bool ItemRule::isEmpty() const
{
    return when.tests.isEmpty() && repeat.over == Repeat::Over::Nothing && !fillsText && rest.isEmpty();
}

bool TemplateRules::isEmpty() const
{
    return *this == TemplateRules();
}

ItemRule TemplateRules::ruleOf(const QString &path) const
{
    for (const ItemRule &rule : items) {
        if (rule.path == path)
            return rule;
    }
    return {path};
}

void TemplateRules::setRule(const ItemRule &rule)
{
    const auto same =
        std::find_if(items.begin(), items.end(), [&](const ItemRule &other) { return other.path == rule.path; });
    if (same == items.end() && !rule.isEmpty())
        items.append(rule);
    else if (same != items.end() && rule.isEmpty())
        items.erase(same);
    else if (same != items.end())
        *same = rule;
}

Result<TemplateRules> rulesFromVariant(const QVariantMap &given)
{
    QVariantMap stored = given;
    const QVariant written = stored.take(key::version);
    if (written.isValid() && written.toLongLong() > version)
        return Outcome::failure(Cause::NotSupported, {}, Text::tr("These rules are of a later version of Tessaro."));
    Reader reader({});
    TemplateRules rules;
    rules.fillsNames = reader.flag(stored, key::fillNames);
    rules.textPatterns = reader.texts(stored, key::texts);
    QString problem;
    int number = 0;
    QHash<QString, qsizetype> places; // of two for one item the later one counts
    for (const QVariantMap &entry : reader.dictionaries(stored, key::items)) {
        const ItemRule rule = itemFrom(entry, ++number, problem);
        const auto place = places.constFind(rule.path);
        if (place != places.cend()) {
            rules.items[*place] = rule;
        } else {
            places.insert(rule.path, rules.items.size());
            rules.items.append(rule);
        }
    }
    rules.items.removeIf([](const ItemRule &rule) { return rule.isEmpty(); });
    QSet<QString> titles;
    for (const QVariantMap &record : reader.dictionaries(stored, key::parameters)) {
        const QString title = record.value(QLatin1String(recordkey::title)).toString();
        if (title.isEmpty())
            reader.complain(Text::tr("a parameter of “parameters” has no title"));
        if (titles.contains(title))
            reader.complain(Text::tr("two parameters of “parameters” are called “%1”").arg(title));
        titles.insert(title);
        rules.parameters.append(record);
    }
    rules.fixed = reader.dictionary(stored, key::fixed);
    for (const QVariant &value : std::as_const(rules.fixed)) {
        if (value.typeId() != QMetaType::QString)
            reader.complain(Text::tr("“%1” holds something that is no text").arg(key::fixed));
    }
    rules.hidden = reader.texts(stored, key::hidden);
    rules.rest = stored;
    problem = reader.problem().isNull() ? problem : reader.problem();
    if (!problem.isNull())
        return Outcome::failure(Cause::Damaged, {}, problem + u'.');
    return rules;
}

QVariantMap variantFromRules(const TemplateRules &rules)
{
    if (rules.isEmpty())
        return {};
    QVariantMap stored = rules.rest;
    stored.insert(key::version, version);
    if (rules.fillsNames)
        stored.insert(key::fillNames, true);
    if (!rules.textPatterns.isEmpty())
        stored.insert(key::texts, variantOf(rules.textPatterns));
    QVariantList items;
    for (const ItemRule &rule : rules.items)
        items.append(variantOf(rule));
    if (!items.isEmpty())
        stored.insert(key::items, items);
    if (!rules.parameters.isEmpty())
        stored.insert(key::parameters, rules.parameters);
    if (!rules.fixed.isEmpty())
        stored.insert(key::fixed, rules.fixed);
    if (!rules.hidden.isEmpty())
        stored.insert(key::hidden, variantOf(rules.hidden));
    return stored;
}

Result<TemplateRules> readRules(const QString &bundle)
{
    const Result<QVariantMap> stored = rulefile::read(bundle);
    if (!stored)
        return stored.outcome();
    Result<TemplateRules> rules = rulesFromVariant(*stored);
    return rules ? rules
                 : Outcome::failure(rules.outcome().cause(), rulefile::pathIn(bundle), rules.outcome().sentence());
}

QString wordOf(Condition::Is is)
{
    return QLatin1String(entryOf(is).word);
}

QString nameOf(Condition::Is is)
{
    return Text::tr(entryOf(is).name);
}

QList<Condition::Is> kindsOfConditions()
{
    QList<Condition::Is> all;
    for (const KindEntry &entry : kinds)
        all.append(entry.is);
    return all;
}
