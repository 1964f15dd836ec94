#include "fieldswindow.h"

#include <cabledoc/fieldvalidators.h>
#include <cabledoc/translations.h>

#include <QtCore/QEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace {

/// Adds an edit field with a validator, which the field owns. The object name of the field is the class name of the
/// validator.
template <typename Validator> void addField(QFormLayout *layout, const QString &label)
{
    auto *field = new QLineEdit;
    field->setValidator(new Validator(field));
    field->setObjectName(QLatin1String(Validator::staticMetaObject.className()));
    layout->addRow(label, field);
}

} // namespace

FieldsWindow::FieldsWindow(const QDate &date, QWidget *parent)
    : QWidget(parent)
    , m_date(date)
{
    setWindowTitle(QStringLiteral("Fields"));
    auto *layout = new QFormLayout(this);
    addField<DeviceValidator>(layout, QStringLiteral("&Device"));
    addField<IDValidator>(layout, QStringLiteral("&Id"));
    addField<InfoValidator>(layout, QStringLiteral("I&nformation"));
    addField<PortValidator>(layout, QStringLiteral("&Port"));
    addField<TypeValidator>(layout, QStringLiteral("Cable &type"));
    addField<LengthValidator>(layout, QStringLiteral("&Length"));
    addField<FileValidator>(layout, QStringLiteral("&File"));

    m_language.addItem(QStringLiteral("English"), QStringLiteral("en"));
    m_language.addItem(QStringLiteral("Deutsch"), QStringLiteral("de"));
    m_language.addItem(QStringLiteral("Espa\u00f1ol"), QStringLiteral("es"));
    m_language.addItem(QStringLiteral("Fran\u00e7ais"), QStringLiteral("fr"));
    layout->addRow(QStringLiteral("Lan&guage"), &m_language);
    layout->addRow(QStringLiteral("Date"), &m_shownDate);
    connect(&m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { cabledoc::installTranslations(QLocale(m_language.currentData().toString())); });
    // The user's own language comes first if it is one of them.
    m_language.setCurrentIndex(std::max(0, m_language.findData(QLocale().name().left(2))));
    showDate();
}

void FieldsWindow::changeEvent(QEvent *event)
{
    // The labels stay English. An application translates its own texts.
    if (event->type() == QEvent::LanguageChange)
        showDate();
    QWidget::changeEvent(event);
}

void FieldsWindow::showDate()
{
    m_shownDate.setText(m_date.toString(QStringLiteral("dddd d MMMM yyyy")));
}
