#include "creation/ProjectCheck.h"

#include "creation/CreationPlan.h"
#include "creation/TemplateRules.h"
#include "platform/base/NativePath.h"
#include "platform/plain/CopyMonitor.h"

#include <QCoreApplication>

using platform::Cause;
using platform::FileKind;
using platform::joined;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCheck)
};

using What = CheckFinding::What;

/// An item that is to be there.
struct Expected
{
    quint32 depth = 0;
    QString path; ///< below the project
    FileKind kind = FileKind::Missing;
    bool hadContents = false;
};

/// Looks at one item after the other; what lies in a folder that is not there is not looked for.
class Comparison
{
public:
    Comparison(ProjectCheck &check, const std::atomic<bool> &cancelled)
        : m_check(check)
        , m_cancelled(cancelled)
    {
    }

    void look(const Expected &item)
    {
        if (m_cancelled || item.depth > m_missingAbove)
            return;
        m_missingAbove = everything;
        ++m_check.looked;
        const QString path = joined(m_check.project, item.path);
        const FileKind kind = platform::kindOf(path);
        const std::optional<What> what = whatIsWrong(item, path, kind);
        if (!what)
            return;
        m_check.findings.append({item.path, *what});
        if (item.kind == FileKind::Folder)
            m_missingAbove = item.depth;
    }

private:
    static std::optional<What> whatIsWrong(const Expected &item, const QString &path, FileKind kind)
    {
        if (kind == FileKind::Missing) // one that cannot be looked at is not known to be gone
            return platform::isMissing(path) ? What::Missing : What::Unseen;
        if ((kind == FileKind::Folder) != (item.kind == FileKind::Folder))
            return What::OtherKind;
        if (item.hadContents && platform::madeItemAt(path).size == 0)
            return What::Emptied;
        return std::nullopt;
    }

    static constexpr quint32 everything = 0xFFFFFFFF;
    ProjectCheck &m_check;
    const std::atomic<bool> &m_cancelled;
    quint32 m_missingAbove = everything; ///< the depth of the folder that is not there
};

void compareWithCreation(ProjectCheck &check, const std::vector<ManifestItem> &items,
                         const std::atomic<bool> &cancelled)
{
    Comparison comparison(check, cancelled);
    QStringList folders; // of the item at hand, outermost first
    for (const ManifestItem &item : items) {
        folders.resize(qMin<qsizetype>(folders.size(), item.depth));
        const QString name = platform::fromNative(item.name);
        const FileKind kind = platform::kindOfType(item.type);
        const bool hadContents = kind == FileKind::File && item.made.size > 0;
        const QString path = (folders + QStringList{name}).join(u'/');
        if (item.made.inode != 0) // what could not be made was said then
            comparison.look({item.depth, path, kind, hadContents});
        folders.append(name);
    }
}

/// Whether an item has another name in each project, or is not made in all of them.
bool dependsOnValues(const TemplateRules &rules, const QString &path, const QString &name)
{
    const ItemRule rule = rules.ruleOf(path);
    return (rules.fillsNames && name.contains(u'{')) || !rule.when.tests.isEmpty() ||
           rule.repeat.over != Repeat::Over::Nothing;
}

class TemplateComparison
{
public:
    TemplateComparison(ProjectCheck &check, const CreationPlan &plan, const TemplateRules &rules,
                       const std::atomic<bool> &cancelled)
        : m_check(check)
        , m_tree(plan.tree)
        , m_rules(rules)
        , m_comparison(check, cancelled)
    {
    }

    void look(std::uint32_t number, quint32 depth, const QString &oldPath, const QString &newPath, bool isCounted)
    {
        const platform::TreeFolder &folder = m_tree.folders[number];
        for (const platform::TreeItem &item : folder.items) {
            const QString name = platform::fromNative(folder.nameOf(item));
            const QString own = oldPath.isEmpty() ? name : joined(oldPath, name);
            const QString newName = platform::fromNative(folder.newNameOf(item));
            const QString path = newPath.isEmpty() ? newName : joined(newPath, newName);
            const bool isLeftAlone = !isCounted || dependsOnValues(m_rules, own, name);
            if (isLeftAlone)
                ++m_check.notLooked;
            else
                m_comparison.look({depth, path, platform::kindOfType(item.type), false});
            if (item.folder != 0)
                look(item.folder, depth + 1, own, path, !isLeftAlone);
        }
    }

private:
    ProjectCheck &m_check;
    const platform::Tree &m_tree;
    const TemplateRules &m_rules;
    Comparison m_comparison;
};

void compareWithTemplate(ProjectCheck &check, const QString &templateFiles, const std::atomic<bool> &cancelled)
{
    const auto rules = readRules(platform::parentPath(templateFiles));
    if (!rules) {
        check.outcome = rules.outcome();
        return;
    }
    const CreationPlan plan =
        planCreation(templateFiles, {.levels = {platform::lastComponent(check.project)}}, cancelled);
    if (!plan.unreadable.isEmpty())
        check.outcome = plan.unreadable.constFirst();
    else
        TemplateComparison(check, plan, *rules, cancelled).look(0, 0, {}, {}, true);
}

/// By the folder itself, so that one that was moved is known again. A drive gives the number of a folder that was
/// deleted to one that comes later.
std::optional<Manifest> rememberedAs(const QString &project)
{
    const auto identity = platform::identityOf(project);
    const auto birth = platform::birthOf(project);
    for (const Manifest &manifest : recentProjects()) {
        if (identity && manifest.identity == *identity && (!birth || *birth <= manifest.made))
            return manifest;
    }
    return std::nullopt;
}

} // namespace

QString sentenceOf(const CheckFinding &finding)
{
    const QString path = platform::forOneLine(finding.path);
    switch (finding.what) {
    case What::Missing:
        return Text::tr("%1: is missing").arg(path);
    case What::OtherKind:
        return Text::tr("%1: a file stands where a folder was made, or the other way round").arg(path);
    case What::Emptied:
        return Text::tr("%1: had contents, and is empty").arg(path);
    case What::Unseen:
        break;
    }
    return Text::tr("%1: cannot be looked at").arg(path);
}

QString wordOf(CheckFinding::What what)
{
    switch (what) {
    case What::Missing:
        return QStringLiteral("missing");
    case What::OtherKind:
        return QStringLiteral("otherKind");
    case What::Emptied:
        return QStringLiteral("emptied");
    case What::Unseen:
        break;
    }
    return QStringLiteral("unseen");
}

ProjectCheck checkProject(const QString &project, const QString &templateName, const QString &templateFiles,
                          platform::CopyMonitor &monitor)
{
    ProjectCheck check;
    check.project = project;
    check.templateName = templateName;
    const FileKind kind = platform::kindOf(project);
    if (kind != FileKind::Folder) {
        const auto isThere = platform::isThereForCertain(project); // what cannot be looked at is not gone
        check.outcome = !isThere                    ? isThere.outcome()
                        : kind == FileKind::Missing ? Outcome::failure(Cause::Missing, project)
                                                    : Outcome::failure(Cause::NotAFolder, project);
        return check;
    }
    const auto manifest = rememberedAs(project);
    const platform::Result<std::vector<ManifestItem>> items =
        manifest ? itemsOf(*manifest) : Outcome::failure(Cause::Missing, project);
    if (items) {
        check.isRemembered = true;
        check.templateName = manifest->templateName;
        compareWithCreation(check, *items, monitor.cancelled);
    } else if (!templateFiles.isNull())
        compareWithTemplate(check, templateFiles, monitor.cancelled);
    if (monitor.cancelled)
        check.outcome = Outcome::failure(Cause::Cancelled, project);
    return check;
}
