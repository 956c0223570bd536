#pragma once

#include <QDialog>
#include <functional>

class QFileDialog;

/** The desktop's own panel, where it shows any; else what the program's panels leave out of the toolkit's own: the list
   of file types, of which there are none, and the pictures on the buttons. */
void makePlain(QFileDialog &panel);

/**
 * Calls the function once the panel has been left, with whether something was chosen, when its own event is over: what
 * comes then may show sheets, and a panel that is still ending would be destroyed beneath them. The panel is hidden by
 * then, can still be asked what was chosen, and goes when the function has returned. Nothing is called when the
 * context has gone. Main thread.
 */
template <typename Panel>
void whenLeft(Panel &panel, QObject &context, std::function<void(Panel &, bool accepted)> then)
{
    const auto end = [&panel, then = std::move(then)](int result) {
        panel.deleteLater();
        then(panel, result == QDialog::Accepted);
    };
    QObject::connect(&panel, &QDialog::finished, &context, end, Qt::QueuedConnection);
}
