#pragma once

#include "support/LongWork.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/**
 * Long work in one line at the bottom of a window: what it is, how much of how much, and Cancel, which comes through
 * while the windows are closed to input; so does Escape. Hidden while nothing takes long. Main thread.
 */
class ProgressLine : public QWidget, public WorkPresenter
{
    Q_OBJECT

public:
    explicit ProgressLine(QWidget *parent = nullptr);
    ~ProgressLine() override;

    void show(const WorkState &state) override;
    void hide() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void colourAmount();
    [[nodiscard]] bool comesThrough(QObject *receiver, QEvent *event);
    void cancel();

    void setTexts(const QString &what, const QString &amount);

    QLabel *m_what;
    QLabel *m_amount; ///< in smaller letters below it
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};
