// Shows edit fields with the library's validators: what they reject, and where they cut.

#include "fieldswindow.h"

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    FieldsWindow window(QDate::currentDate());
    window.show();
    return QApplication::exec();
}
