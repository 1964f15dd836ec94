#pragma once

#include <cabledoc/translatabledate.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

/// A window with an edit field for each validator, a choice of languages, and a date in the chosen language.
class FieldsWindow : public QWidget
{
    Q_OBJECT

public:
    explicit FieldsWindow(const QDate &date, QWidget *parent = nullptr);

protected:
    /// Called when another language has been installed.
    void changeEvent(QEvent *event) override;

private:
    void showDate();

    TranslatableDate m_date;
    QLabel m_shownDate;
    QComboBox m_language;
};
