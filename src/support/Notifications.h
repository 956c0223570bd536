#pragma once

#include <QObject>

/** The notifications that the parts of the program send each other, without knowing who listens. Main thread only. */
class Notifications : public QObject
{
    Q_OBJECT

public:
    static Notifications &hub();

Q_SIGNALS:
    /** The parameter list changed: reload it. */
    void VTTessaroReloadFilenameParams();
    /** Recompute dates and user names; always right after the previous one. */
    void VTTessaroRefreshDynamicValues();
    /** Start editing the first parameter. */
    void VTTessaroEditFirstParameter();
    /** The settings' file was written, by this program or another: follow, without disturbing what is being typed. */
    void settingsWritten();
    /** The set of templates changed: show it anew. */
    void VTTessaroRefreshTemplates();

private:
    Notifications() = default;
};
