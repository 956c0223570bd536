#include "templates/TemplateChoice.h"

#include "support/Settings.h"

QString chosenTemplate(const QStringList &templates, const QString &defaultTemplate, const QString &selectedTemplate)
{
    for (const QString &wanted : {defaultTemplate, selectedTemplate}) {
        if (!wanted.isEmpty() && templates.contains(wanted))
            return wanted;
    }
    return templates.value(0);
}

QString chosenTemplate(const QStringList &templates)
{
    return chosenTemplate(templates, settings::defaultTemplate.text(), settings::selectedProjectTemplate.text());
}
