#pragma once

#include <QList>
#include <QString>

/** One chapter of the user manual. */
struct ManualChapter
{
    QString key;      ///< "rules": the same in every language
    QString title;    ///< "Teach a template to think along"
    QString markdown; ///< with its title
};

/** The manual's text, docs/manual/manual.md, taken apart: a comment "<!-- chapter: KEY -->" stands before each. What
   comes before the first has the key "" . Pure. */
[[nodiscard]] QList<ManualChapter> chaptersOf(const QString &manual);
