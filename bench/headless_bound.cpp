// A lower bound for print-panels' headless runs, timed by bench/dialog next to
// ppd_process_floor: the floor's work (fetch the queue's PPD, open and mark
// it) on the platform headless runs use, plus only what their output cannot
// do without:
//   --fonts  the watermark font lookups every option list prints (the font
//            families, the family that stands in for Arial and its members);
//   --forms  also the nine panels' forms, built and destroyed with no rule
//            run, the least --describe must build to read its controls.
#include "MRFontCatalog.h"
#include "QueuePPDFloor.h"
#include "ui_AdvancedOptionPDE.h"
#include "ui_Finishing.h"
#include "ui_GraphicsAndPaper.h"
#include "ui_JobHandling.h"
#include "ui_ManualDuplexPDE.h"
#include "ui_ManualMarginPDE.h"
#include "ui_PageListPDE.h"
#include "ui_SecureReleasePDE.h"
#include "ui_Security.h"

#include <QApplication>

#include <cstring>
#include <memory>
#include <vector>

namespace {
template <typename Form>
void build(std::vector<std::unique_ptr<QWidget>>& views)
{
    Form form;
    views.push_back(std::make_unique<QWidget>());
    form.setupUi(views.back().get());
}
}

int main(int argc, char** argv)
{
    bool fonts = false;
    bool forms = false;
    const char* queue = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--fonts"))
            fonts = true;
        else if (!std::strcmp(argv[i], "--forms"))
            fonts = forms = true;
        else
            queue = argv[i];
    }
    if (!queue) {
        std::fprintf(stderr, "usage: headless_bound [--fonts] [--forms] QUEUE\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "minimal");
    MRFontCatalog::releaseFontconfigAtExit();
    QApplication app(argc, argv);
    if (!openAndMarkQueuePPD("headless_bound", queue))
        return 2;
    if (fonts) {
        const QString family = MRFontCatalog::resolvedFamily(QStringLiteral("Arial"));
        if (MRFontCatalog::familyNames().isEmpty() || MRFontCatalog::members(family).isEmpty()) {
            std::fprintf(stderr, "headless_bound: no font stands in for Arial\n");
            return 2;
        }
    }
    if (forms) {
        std::vector<std::unique_ptr<QWidget>> views;
        build<Ui::GraphicsAndPaper>(views);
        build<Ui::JobHandling>(views);
        build<Ui::Finishing>(views);
        build<Ui::Security>(views);
        build<Ui::SecureReleasePDE>(views);
        build<Ui::AdvancedOptionPDE>(views);
        build<Ui::ManualDuplexPDE>(views);
        build<Ui::PageListPDE>(views);
        build<Ui::ManualMarginPDE>(views);
    }
    return 0;
}
