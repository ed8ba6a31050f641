// print-panels-example [--ppd FILE] [--list-tabs]
//
// A text editor whose print dialog carries the Print Panels. --ppd gives the
// panels' PPD for a printer without a CUPS queue; --list-tabs builds the
// print dialog, writes the titles of its option tabs one a line and quits.
#include "EditorWindow.h"
#include "PrintPanelsIntegration.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <cstdio>

static int listTabs(const QString& ppdFile)
{
    QPrinter printer;
    QPrintDialog dialog(&printer);
    PrintPanelsIntegration panels;
    if (!panels.addPanelsToDialog(&dialog, &printer, ppdFile)) {
        std::fprintf(stderr, "print-panels-example: %s\n", qPrintable(panels.errorString()));
        return 2;
    }
    // The dialog's own tab widgets, not those inside a panel's view.
    for (QTabWidget* tabs : dialog.findChildren<QTabWidget*>()) {
        bool insidePanel = false;
        for (QWidget* w = tabs->parentWidget(); w && !insidePanel; w = w->parentWidget())
            insidePanel = w->objectName() == QLatin1String("printPanelsTab");
        if (insidePanel)
            continue;
        for (int i = 0; i < tabs->count(); ++i)
            std::printf("%s\n", tabs->tabText(i).remove(QLatin1Char('&')).toUtf8().constData());
    }
    return 0;
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("print-panels-example"));
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("ppd"), QStringLiteral("The panels' PPD file."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("list-tabs"), QStringLiteral("Write the print dialog's option tabs and quit.")});
    parser.addHelpOption();
    parser.process(app);
    if (parser.isSet(QStringLiteral("list-tabs")))
        return listTabs(parser.value(QStringLiteral("ppd")));
    EditorWindow window(parser.value(QStringLiteral("ppd")));
    window.show();
    return QApplication::exec();
}
