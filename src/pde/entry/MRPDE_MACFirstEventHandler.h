#pragma once
#include <QList>
#include <QString>
#include <memory>

class PDEBundle;
class PDEPanel;
class PDEPluginCallback;
class MRPDE_MACChangeHandlerModel;
struct ppd_file_s;

// The plug-in's principal object: the dialog creates it with the bundle, then
// asks it for the panels. It builds the option model shared by the
// model-driven panels and decides which panels are offered, in which order.
class MRPDE_MACFirstEventHandler {
public:
    MRPDE_MACFirstEventHandler();
    ~MRPDE_MACFirstEventHandler();

    bool initWithBundle(std::shared_ptr<PDEBundle> bundle);
    // The panels the dialog shows, in order; the type is not looked at.
    QList<std::shared_ptr<PDEPanel>> PDEPanelsForType(const QString& type, PDEPluginCallback* hostInfo);

    // The debug switch: on once the bundle's Info has any value under "DEBUG".
    static bool debug();

    std::shared_ptr<PDEBundle> pdeBundle() const { return m_pdeBundle; }
    void setPdeBundle(std::shared_ptr<PDEBundle> b) { m_pdeBundle = std::move(b); }
    PDEPluginCallback* pdePluginCallBack() const { return m_pdePluginCallBack; }
    void setPdePluginCallBack(PDEPluginCallback* c) { m_pdePluginCallBack = c; }
    std::shared_ptr<MRPDE_MACChangeHandlerModel> dataModel() const { return m_dataModel; }
    void setDataModel(std::shared_ptr<MRPDE_MACChangeHandlerModel> m) { m_dataModel = std::move(m); }

    // Whether the standalone panels are offered: the bundle's "UseMergedPDE"
    // is exactly the string "YES" and no "APDialogExtension" of the PPD names
    // the maker's own separate advanced-options or special-pages extension.
    static bool offersStandalonePanels(const PDEBundle* bundle, ppd_file_s* ppd);
    // Whether any "APDialogExtension" value matches "*AdvancedOptionPDE*" or "*SpecialPagePDE*".
    static bool ppdInstallsSeparateExtensions(ppd_file_s* ppd);

private:
    std::shared_ptr<PDEBundle> m_pdeBundle;
    PDEPluginCallback* m_pdePluginCallBack = nullptr;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> m_dataModel;
};
