#pragma once

#include "commands/Verb.h"
#include "creation/BatchCreation.h"
#include "creation/CreationPlan.h"
#include "creation/ProjectCreation.h"
#include "creation/ProjectRequest.h"
#include "platform/files/TemporaryFolder.h"

#include <optional>

/** `Tessaro create`: the window's creation, with the command line in place of table, pop-up and panel. */
class CreateCommand : private CreationHost
{
public:
    explicit CreateCommand(const Invocation &invocation);

    [[nodiscard]] int run();

private:
    // CreationHost: no spinner, nothing is revealed, and quitting is what a command does anyway.
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}

    [[nodiscard]] bool findLibrary(QString &location, QStringList &names);
    [[nodiscard]] platform::Result<ProjectRequest> requestFor(const QString &templateName) const;
    [[nodiscard]] bool readValues();
    [[nodiscard]] bool makeRequest();
    [[nodiscard]] bool askForMissing();
    [[nodiscard]] bool parametersAreComplete();
    [[nodiscard]] bool findDestination();
    [[nodiscard]] bool findTemplate();
    [[nodiscard]] int printPlan();
    // Many at once:
    [[nodiscard]] int runTable();
    [[nodiscard]] bool readBatch(ProjectBatch &batch);
    void complainAbout(const ProjectBatch &batch);
    void printPlans(const ProjectBatch &batch);
    void createAll(const ProjectBatch &batch);
    [[nodiscard]] int create();
    /** Prints what was made. */
    [[nodiscard]] int report(const CreationResult &result, bool isThere) const;
    /** Says it on standard error, remembers it and its status for the end. False, for whoever has to stop then. */
    bool fail(int status, const QString &problem, const char *code = nullptr);
    bool fail(const platform::Outcome &failure, const QString &problem);
    bool keep(const QString &problem, const char *code);
    /** The status of what was refused before anything was made. */
    int refused();
    void printObject(const CreationResult &result, const CreationPlan *plan) const;

    const Invocation &m_invocation;
    const bool m_isDryRun;
    std::optional<platform::TemporaryFolder>
        m_unpacked; ///< the shipped templates, for a dry run before the first start
    QString m_library;
    QStringList m_templates;
    QString m_templateName;
    QString m_location;
    ProjectRequest m_request;
    QList<std::pair<QString, QString>> m_values; ///< by title, of --values
    QStringList m_problems;
    QString m_code; ///< of the first problem, for programs
    int m_status = 0;
};
