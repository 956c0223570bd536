#pragma once

#include "app/ManualChapters.h"

#include <QTextBrowser>
#include <QWidget>

class QLineEdit;
class QListWidget;

/** One chapter of the manual, with its pictures as wide as there is room. */
class ManualPage : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ManualPage(QWidget *parent = nullptr);

    [[nodiscard]] QVariant loadResource(int type, const QUrl &name) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QSet<QUrl> m_pictures; ///< of what is shown
};

/**
 * The user manual in a window of its own, which needs no viewer and no network: chapters at the left, the text at the
 * right, a line that searches all of it. Comes by F1 with the chapter of what is in front: a widget says so by its
 * property "manualChapter", for itself and what lies in it. One for the program; main thread.
 */
class ManualWindow : public QWidget
{
    Q_OBJECT

public:
    /** The name of the property. */
    static constexpr const char *chapterProperty = "manualChapter";

    /** Brings it to the front with the chapter; the first one for an empty or unknown key. False without a text. */
    static bool open(const QString &chapter);
    /** What the widget, or the nearest around it, says; null where none does. */
    [[nodiscard]] static QString chapterOf(const QWidget *widget);

    /** Shows the chapter of what has the focus; false as above. */
    static bool openForFocus();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    ManualWindow(const QString &manual, const QString &folder);
    void showChapter(const QString &key);
    void showCurrent();
    void search(const QString &text);

    QList<ManualChapter> m_chapters;
    QLineEdit *m_search;
    QListWidget *m_list;
    ManualPage *m_page;
};

/** F1 anywhere in the program, in sheets and other windows too, opens the manual. Lives as long as the application. */
void openManualByKey();
