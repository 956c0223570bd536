#include "app/BrowseAccessory.h"

#include "platform/base/NativePath.h"
#include "ui/Icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int warningSide = 16;

QLabel *plainLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

BrowseAccessory::BrowseAccessory(QString relativePath, QWidget *parent)
    : QWidget(parent)
    , m_relativePath(std::move(relativePath))
    , m_path(plainLabel(this))
    , m_warning(plainLabel(this))
    , m_sign(new QWidget(this))
{
    m_path->setObjectName(QStringLiteral("wholePath"));
    m_warning->setObjectName(QStringLiteral("existsWarning"));
    m_warning->setText(tr("A project with this name already exists there. You will be asked what to do."));
    auto *sign = new QLabel(m_sign);
    sign->setPixmap(icons::named("warning").pixmap(warningSide, warningSide));
    auto *line = new QHBoxLayout(m_sign);
    line->setContentsMargins({});
    line->addWidget(sign);
    line->addWidget(m_warning, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_path);
    column->addWidget(m_sign);
    QSizePolicy policy = m_sign->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing jumps when the warning comes and goes
    m_sign->setSizePolicy(policy);
    m_sign->hide();
}

void BrowseAccessory::setFolder(const QString &folder)
{
    const QString whole = platform::joined(folder, m_relativePath);
    m_path->setText(tr("Makes: %1").arg(platform::forDisplay(whole)));
    m_exists.ask(folder, m_relativePath, [this](bool exists) { m_sign->setVisible(exists); });
}
