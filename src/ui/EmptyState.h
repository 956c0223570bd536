#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/** What is shown where there is nothing yet: a drawing, a sentence, and a button that does the next step. */
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyState(QWidget *parent = nullptr);
    /** A null button text means no button. */
    void setContents(const char *iconName, const QString &sentence, const QString &buttonText);

Q_SIGNALS:
    void activated();

private:
    QLabel *m_picture;
    QLabel *m_sentence;
    QPushButton *m_button;
};
