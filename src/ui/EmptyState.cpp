#include "ui/EmptyState.h"

#include "ui/Icons.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int pictureSide = 64;
constexpr int spacing = 12;

} // namespace

EmptyState::EmptyState(QWidget *parent)
    : QWidget(parent)
    , m_picture(new QLabel(this))
    , m_sentence(new QLabel(this))
    , m_button(new QPushButton(this))
{
    auto *column = new QVBoxLayout(this);
    column->setSpacing(spacing);
    column->addStretch();
    for (QLabel *label : {m_picture, m_sentence}) {
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
    }
    m_sentence->setWordWrap(true);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(m_button, &QPushButton::clicked, this, &EmptyState::activated);
}

void EmptyState::setContents(const char *iconName, const QString &sentence, const QString &buttonText)
{
    m_picture->setPixmap(icons::named(iconName, icons::Tone::Secondary).pixmap(pictureSide, pictureSide));
    m_sentence->setText(sentence);
    m_button->setText(buttonText);
    m_button->setVisible(!buttonText.isNull());
}
