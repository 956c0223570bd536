#include "ui/VTSavePanel.h"

#include "platform/base/NativePath.h"

#include <QGridLayout>
#include <QLineEdit>

VTSavePanel::VTSavePanel(QWidget *parent)
    : QFileDialog(parent)
{
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setOptions(DontUseNativeDialog | DontConfirmOverwrite | ShowDirsOnly);
    setWindowModality(Qt::WindowModal);
}

void VTSavePanel::setAccessoryView(QWidget *view)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout()))
        grid->addWidget(view, grid->rowCount(), 0, 1, grid->columnCount());
}

void VTSavePanel::done(int result)
{
    if (result == Accepted && m_chosenPath.isNull())
        m_chosenPath = selectedFiles().value(0);
    QFileDialog::done(result);
}

void VTSavePanel::accept()
{
    const auto *edit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const QString typed = edit ? edit->text() : QString();
    const bool leadsSomewhere = typed.contains(u'/') || typed == u"." || typed == u"..";
    if (typed.isEmpty() || leadsSomewhere) // a path typed to get somewhere: the panel goes there
        return QFileDialog::accept();
    m_chosenPath = platform::joined(directory().absolutePath(), typed);
    done(Accepted);
}
