#pragma once

#include "app/CommandLine.h"
#include "app/CreationPlan.h"
#include "app/ProjectCreation.h"
#include "parameters/FilenameParameter.h"

#include <QTemporaryDir>
#include <memory>

class TerminalPresenter;
class VTProjectTableController;

/** `Tessaro create`: the window's creation, with the command line in place of table, pop-up and panel. */
class CreateCommand : private CreationHost
{
public:
    CreateCommand(const CommandRequest &request, const TerminalPresenter &presenter);
    ~CreateCommand() override;

    [[nodiscard]] int run();

private:
    // CreationHost: no spinner, nothing is revealed, and quitting is what a command does anyway.
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override;
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
    [[nodiscard]] QWidget *window() const override { return nullptr; }

    [[nodiscard]] bool readParameters();
    [[nodiscard]] bool applyValue(const QString &title, const QString &value);
    [[nodiscard]] bool parametersAreComplete();
    [[nodiscard]] bool findDestination();
    [[nodiscard]] bool findTemplate();
    [[nodiscard]] int printPlan();
    [[nodiscard]] int create();
    /** Says it on standard error, remembers it for the JSON object, and ends with the status. */
    int refuse(int status, const QString &problem);
    int refused();
    void printObject(const CreationResult &result, const CreationPlan *plan) const;

    const CommandRequest &m_request;
    const TerminalPresenter &m_presenter;
    std::unique_ptr<VTProjectTableController> m_table; ///< absent in a dry run, which stores nothing
    std::unique_ptr<QTemporaryDir> m_unpacked;         ///< the shipped templates, for a dry run before the first start
    FilenameParameters m_parameters;
    QStringList m_levels;
    QString m_templateName;
    QString m_filesFolder;
    QString m_destination;
    QStringList m_problems;
    int m_status = 0;
};
