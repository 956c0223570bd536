#include "app/ResultPane.h"

#include "creation/ProjectRequest.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "support/Settings.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int rowPadding = 8;
constexpr double mostForRemarks = 0.36;
/// More rows are opened down to the first folders only: nobody looks through them all.
constexpr std::size_t mostOpened = 2000;

QLabel *lineIn(QVBoxLayout &layout, QWidget &parent, const char *name)
{
    auto *label = new QLabel(&parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->hide();
    layout.addWidget(label);
    return label;
}

struct Read
{
    CreationPlan plan;
    quint64 bytes = 0;
    QString problem; ///< of the template's rules
};

} // namespace

ResultPane::ResultPane(QWidget *parent)
    : QWidget(parent)
    , m_view(new QTreeView(this))
{
    auto *layout = new QVBoxLayout(this);
    setProperty("manualChapter", "result");
    layout->setContentsMargins({});
    layout->setSpacing(rowPadding);
    m_place = lineIn(*layout, *this, "resultPlace");
    m_problems = lineIn(*layout, *this, "resultProblems");
    m_problems->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(m_problems, &QLabel::linkActivated, this, &ResultPane::showNextProblem);
    m_remark = lineIn(*layout, *this, "resultRemark");
    m_view->setObjectName(QStringLiteral("resultTree"));
    m_view->setAccessibleName(tr("The project as it will be"));
    m_view->setModel(&m_model);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setMinimumSize(200, 90);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(ResultModel::NameColumn, QHeaderView::Stretch);
    m_view->header()->setSectionResizeMode(ResultModel::RemarkColumn, QHeaderView::Fixed);
    m_view->header()->setMinimumSectionSize(0);
    layout->addWidget(m_view);
    m_numbers = lineIn(*layout, *this, "resultNumbers");
    connect(&m_model, &QAbstractItemModel::modelReset, this, &ResultPane::openFolders);
}

ResultPane::~ResultPane()
{
    *m_isOver = true;
}

void ResultPane::setTemplate(const QString &files)
{
    if (std::exchange(m_files, files) != files && isVisible())
        read();
}

void ResultPane::setValues(const QStringList &levels, const QString &location, const FilenameParameters &parameters)
{
    const bool isOther = levels != m_levels || location != m_location || parameters != m_parameters;
    m_levels = levels;
    m_location = location;
    m_parameters = parameters;
    if (!isVisible() || !isOther)
        return;
    const int scrolled = m_view->verticalScrollBar()->value();
    m_model.setInput(input());
    m_view->verticalScrollBar()->setValue(scrolled);
    m_view->viewport()->update(); // the view itself draws only the rows that are named
    showNumbers();
    lookAtPlace();
}

PlanInput ResultPane::input() const
{
    PlanInput input{m_levels};
    input.values = valuesOfProject(m_parameters, m_levels, settings::dateFormat.text(), std::time(nullptr));
    return input;
}

void ResultPane::followDisk()
{
    if (isVisible())
        read();
}

void ResultPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    read();
}

void ResultPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    shareWidth();
}

/// Names come first: a remark has a third at most, and the whole of it stands in the tool tip.
void ResultPane::shareWidth()
{
    const bool hasRemarks = !m_model.plan().named.empty() || m_model.plan().ruled;
    const int most = hasRemarks ? static_cast<int>(m_view->viewport()->width() * mostForRemarks) : 0;
    m_view->header()->resizeSection(ResultModel::RemarkColumn, most);
}

void ResultPane::read()
{
    if (m_readFiles != m_files) { // another template's tree is no answer, and neither are its numbers
        m_model.setPlan({});
        showNumbers();
    }
    if (m_readings.contains(m_files)) { // one at a time: a share that hangs holds one thread
        m_readsAgain.insert(m_files);
        return;
    }
    m_readings.insert(m_files);
    const auto result = std::make_shared<Read>();
    const auto work = [files = m_files, input = input(), result, cancelled = m_isOver]() mutable {
        if (files.isNull())
            return;
        const auto rules = readRules(platform::parentPath(files));
        result->problem = rules.outcome().description();
        input.rules = std::make_shared<const TemplateRules>(rules.valueOr({}));
        result->plan = planCreation(files, input, *cancelled);
        result->bytes = platform::measureTree(files, *cancelled).bytes;
    };
    platform::performBeside(work, [pane = QPointer(this), files = m_files, result] {
        if (!pane)
            return;
        pane->m_readings.remove(files);
        const bool isOld = pane->m_readsAgain.remove(files);
        if (files != pane->m_files)
            return;
        if (isOld)
            return pane->read();
        pane->m_bytes = result->bytes;
        pane->m_ruleProblem = result->problem;
        pane->m_readFiles = files;
        pane->showPlan(std::move(result->plan));
    });
}

void ResultPane::showPlan(CreationPlan plan)
{
    const int scrolled = m_view->verticalScrollBar()->value();
    planFor(plan, input()); // somebody has typed meanwhile
    m_model.setPlan(std::move(plan));
    m_view->verticalScrollBar()->setValue(scrolled);
    shareWidth();
    showNumbers();
    lookAtPlace();
}

void ResultPane::openFolders()
{
    if (m_model.plan().tree.itemCount() <= mostOpened) {
        m_view->expandAll();
        for (const std::uint32_t folder : m_model.plan().repeated) // one is like the other
            m_view->collapse(m_model.indexOfFolder(folder));
        return;
    }
    QModelIndex level = m_model.index(0, 0);
    for (qsizetype i = 0; i < m_model.plan().levels.size(); ++i, level = m_model.index(0, 0, level))
        m_view->expand(level);
}

void ResultPane::showNumbers()
{
    const CreationPlan &plan = m_model.plan();
    const bool isRead = !plan.tree.folders.empty();
    m_numbers->setVisible(isRead);
    if (isRead)
        m_numbers->setText(
            tr("Folders: %1, files: %2, %3")
                .arg(plan.folders())
                .arg(plan.files())
                .arg(locale().formattedDataSize(static_cast<qint64>(m_bytes), 1, QLocale::DataSizeSIFormat)));
    const int problems = m_model.problemCount();
    m_problems->setVisible(problems > 0);
    m_problems->setText(
        QStringLiteral("<a href=\"next\">%1</a>")
            .arg((plan.ruled ? tr("Problems: %1") : tr("Names that cannot be given: %1")).arg(problems)));
    QString remark;
    if (!m_ruleProblem.isEmpty())
        remark = tr("The template’s rules cannot be read: %1").arg(platform::forDisplay(m_ruleProblem));
    else if (plan.isCutOff)
        remark = tr("Repeats make more than %L1 items. These are the first.").arg(mostRepeatedUnasked);
    m_remark->setText(remark);
    m_remark->setVisible(!remark.isEmpty());
}

/// On a thread: it may be a share that takes its time.
void ResultPane::lookAtPlace()
{
    m_place->hide();
    m_looksAgain = m_looks.contains(m_location);
    if (m_looksAgain || m_levels.isEmpty() || m_location.isEmpty())
        return;
    m_looks.insert(m_location);
    const QString project = platform::joined(m_location, m_levels.join(u'/'));
    const auto found = std::make_shared<std::optional<platform::TreeSize>>();
    const auto work = [project, found, cancelled = m_isOver] {
        if (platform::kindOf(project) != platform::FileKind::Missing)
            *found = platform::measureTree(project, *cancelled);
    };
    platform::performBeside(work, [pane = QPointer(this), project, location = m_location, found] {
        if (!pane)
            return;
        pane->m_looks.remove(location);
        if (location == pane->m_location && std::exchange(pane->m_looksAgain, false))
            return pane->lookAtPlace();
        if (!*found || project != platform::joined(pane->m_location, pane->m_levels.join(u'/')))
            return;
        pane->m_place->setText(
            tr("A project of this name is there already. It goes to the Trash when this one is created. Items: %1")
                .arg((*found)->items));
        pane->m_place->show();
    });
}

void ResultPane::showNextProblem()
{
    const QModelIndex next = m_model.problemAfter(m_view->currentIndex());
    m_view->setCurrentIndex(next);
    m_view->scrollTo(next);
    m_view->setFocus();
}
