#include "platform/base/System.h"
#pragma once

#include <QString>
#include <QTemporaryDir>

/**
 * A home folder of the test's own, with HOME and the XDG folders pointing into it, so that settings, log, library and
 * Trash are real and touch nobody's. Make it first in main(), before anything asks for a folder. Removed at the end.
 */
class TemporaryHome
{
public:
    TemporaryHome();
    ~TemporaryHome();
    TemporaryHome(const TemporaryHome &) = delete;
    TemporaryHome &operator=(const TemporaryHome &) = delete;
    [[nodiscard]] QString path() const { return m_folder.path(); }
    /** The path below the home; the parent folders are made. */
    [[nodiscard]] QString file(const QString &relative) const;

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_runtime; ///< the desktop's own must not be reached, and without one Qt complains
};

/** main() of a test: a locale as the program's, a home of its own, then the test in the application class named. */
#define TESSARO_TEST_MAIN(Application, Test)                                                                           \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        platform::prepareLocale();                                                                                     \
        const TemporaryHome home;                                                                                      \
        Application application(argc, argv);                                                                           \
        Test test;                                                                                                     \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

/** Writes the bytes into a file, making its folders; fails the test when it cannot. */
void writeFile(const QString &path, const QByteArray &contents = {});
[[nodiscard]] QByteArray readFile(const QString &path);
