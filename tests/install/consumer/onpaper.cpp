#include <uiutils/reportpaper.h>
#include <uiutils/reportpdf.h>

#include <QGuiApplication>
#include <QPrinter>

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromLocal8Bit(argv[1]));
    return uiutils::ReportPaper().print(ReportPDF(), printer) ? 0 : 1;
}
