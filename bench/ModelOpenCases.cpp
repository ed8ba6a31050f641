#include "ModelOpenCases.h"

#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "PrintDialogHost.h"

#include <cups/ppd.h>

bool ModelOpenCases::libcupsFloor(const char* path)
{
    ppd_file_t* ppd = ppdOpenFile(path);
    if (!ppd)
        return false;
    ppdMarkDefaults(ppd);
    ppdClose(ppd);
    return true;
}

int ModelOpenCases::modelOpen(const std::shared_ptr<PDEBundle>& bundle, const QString& path, QString* error)
{
    auto host = PrintDialogHost::openPPDFile(path, error);
    if (!host)
        return -1;
    MRPDE_MACChangeHandlerModel model(bundle, host.get());
    ppd_file_t* ppd = host->ppd();
    int features = 0;
    for (ppd_option_t* o = ppdFirstOption(ppd); o; o = ppdNextOption(ppd))
        features += model.featureWithKey(QString::fromUtf8(o->keyword)) ? 1 : 0;
    return features;
}
