#pragma once

#include "app/ResultModel.h"

#include <QSet>
#include <QWidget>
#include <atomic>
#include <memory>

class QLabel;
class QTreeView;

/**
 * The second half of the project pane: the tree that will be made, with every key. The template is read on a thread of
 * its own, and once; names follow from what was read. Hidden it does nothing. Main thread only.
 */
class ResultPane : public QWidget
{
    Q_OBJECT

public:
    explicit ResultPane(QWidget *parent = nullptr);
    ~ResultPane() override;

    /** The folder whose contents the project gets; null for none. */
    void setTemplate(const QString &files);
    /** What the table shows, and the folder in which the project will lie. */
    void setValues(const QStringList &levels, const QString &location, const FilenameParameters &parameters);
    /** Reads the template anew: it may have been changed. */
    void followDisk();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] PlanInput input() const;
    void read();
    void showPlan(CreationPlan plan);
    void openFolders();
    void shareWidth();
    void showNumbers();
    void lookAtPlace();
    void showNextProblem();

    ResultModel m_model;
    QTreeView *m_view;
    QLabel *m_place;    ///< what stands at the project's place already
    QLabel *m_problems; ///< how many, as a link to the next
    QLabel *m_remark;   ///< what is to be said of the whole
    QLabel *m_numbers;
    QString m_files;
    QString m_readFiles; ///< whose tree is shown
    QStringList m_levels;
    FilenameParameters m_parameters;
    QString m_location;
    quint64 m_bytes = 0;
    QString m_ruleProblem;    ///< why the template's rules could not be read; empty: they could
    QSet<QString> m_readings; ///< templates that are being read
    QSet<QString> m_readsAgain;
    QSet<QString> m_looks; ///< places that are being looked at
    bool m_looksAgain = false;
    std::shared_ptr<std::atomic<bool>> m_isOver = std::make_shared<std::atomic<bool>>(false); ///< nobody waits any more
};
