#include "app/ManualWindow.h"

#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/WholeFile.h"
#include "support/Translations.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int margin = 16;
constexpr int textMargin = 20;
constexpr QSize usualSize{920, 680};
constexpr int listWidth = 250;

QPointer<ManualWindow> &shownManual()
{
    static QPointer<ManualWindow> shown;
    return shown;
}

/// In the user's language, where there is one in it.
QString manualFile()
{
    const auto &bundle = platform::ApplicationBundle::main();
    const QString own = bundle.resource(QStringLiteral("Manual/manual.%1.md").arg(translations::language()));
    return own.isNull() ? bundle.resource(QStringLiteral("Manual/manual.md")) : own;
}

class KeyWatch : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        return key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier && ManualWindow::openForFocus();
    }
};

} // namespace

ManualPage::ManualPage(QWidget *parent)
    : QTextBrowser(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // else it would take room from pictures that are there already
}

/// The text flows by itself; the pictures are scaled.
void ManualPage::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    if (event->size().width() == event->oldSize().width() || m_pictures.isEmpty())
        return;
    for (const QUrl &picture : std::as_const(m_pictures))
        document()->addResource(QTextDocument::ImageResource, picture,
                                loadResource(QTextDocument::ImageResource, picture));
    document()->markContentsDirty(0, document()->characterCount());
}

QVariant ManualPage::loadResource(int type, const QUrl &name)
{
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return loaded;
    m_pictures.insert(name);
    QImage image =
        loaded.userType() == QMetaType::QByteArray ? QImage::fromData(loaded.toByteArray()) : loaded.value<QImage>();
    const int room = viewport()->width() - 2 * textMargin;
    if (image.width() > room && room > 0)
        image = image.scaledToWidth(static_cast<int>(room * devicePixelRatioF()), Qt::SmoothTransformation);
    if (image.width() > room && room > 0)
        image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

bool ManualWindow::open(const QString &chapter)
{
    if (!shownManual()) {
        const QString file = manualFile();
        const auto text = platform::readFile(file);
        if (file.isNull() || !text)
            return false;
        shownManual() = new ManualWindow(QString::fromUtf8(*text), platform::parentPath(file));
    }
    shownManual()->showChapter(chapter);
    shownManual()->show();
    shownManual()->raise();
    shownManual()->activateWindow();
    return true;
}

QString ManualWindow::chapterOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const QVariant chapter = widget->property(chapterProperty); chapter.isValid())
            return chapter.toString();
    }
    return {};
}

bool ManualWindow::openForFocus()
{
    const QWidget *focus = QApplication::focusWidget();
    if (shownManual() && shownManual()->isAncestorOf(focus))
        return true;
    const QString chapter = chapterOf(focus);
    return open(chapter.isNull() ? chapterOf(QApplication::activeWindow()) : chapter);
}

ManualWindow::ManualWindow(const QString &manual, const QString &folder)
    : m_chapters(chaptersOf(manual))
    , m_search(new QLineEdit)
    , m_list(new QListWidget)
    , m_page(new ManualPage)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    setWindowTitle(tr("Tessaro User Manual"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the manual"));
    m_search->setClearButtonEnabled(true);
    m_list->setAccessibleName(tr("Chapters"));
    m_list->setWordWrap(true);
    m_list->setSpacing(3);
    m_page->setAccessibleName(tr("Text of the chapter"));
    m_page->setOpenExternalLinks(true);
    m_page->setSearchPaths({folder});
    m_page->document()->setDocumentMargin(textMargin);
    for (const ManualChapter &chapter : std::as_const(m_chapters))
        m_list->addItem(chapter.title);

    auto *side = new QWidget;
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins({});
    column->addWidget(m_search);
    column->addWidget(m_list);
    auto *splitter = new QSplitter;
    splitter->addWidget(side);
    splitter->addWidget(m_page);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({listWidth, usualSize.width() - listWidth});
    splitter->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(splitter);
    resize(usualSize);

    connect(m_list, &QListWidget::currentRowChanged, this, &ManualWindow::showCurrent);
    connect(m_search, &QLineEdit::textChanged, this, &ManualWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { m_page->find(m_search->text()); });
    new QShortcut(QKeySequence::Find, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
}

void ManualWindow::showChapter(const QString &key)
{
    m_search->clear();
    const auto chapter =
        std::find_if(m_chapters.cbegin(), m_chapters.cend(), [&](const ManualChapter &one) { return one.key == key; });
    const auto row = chapter == m_chapters.cend() ? 0 : static_cast<int>(chapter - m_chapters.cbegin());
    if (m_list->currentRow() == row)
        showCurrent();
    m_list->setCurrentRow(row);
    m_page->setFocus();
}

void ManualWindow::showCurrent()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    m_page->document()->setMarkdown(m_chapters[row].markdown);
    m_page->moveCursor(QTextCursor::Start);
    if (!m_search->text().isEmpty())
        m_page->find(m_search->text());
}

/// Only the chapters with the text stay in the list.
void ManualWindow::search(const QString &text)
{
    int first = -1;
    for (int row = 0; row < m_chapters.size(); ++row) {
        const bool isFound = m_chapters[row].markdown.contains(text, Qt::CaseInsensitive);
        m_list->item(row)->setHidden(!isFound);
        if (isFound && first < 0)
            first = row;
    }
    const auto *current = m_list->currentItem();
    if (first >= 0 && (!current || current->isHidden()))
        m_list->setCurrentRow(first);
    else
        showCurrent();
}

void ManualWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void openManualByKey()
{
    qApp->installEventFilter(new KeyWatch(qApp));
}
