#pragma once
#include <QList>
#include <functional>
#include <memory>

class PDEBundle;
class PDEPanel;
class PDEPluginCallback;
class MRPDE_MACChangeHandlerModel;

// The panels the plug-in can offer, in the dialog's order, with how each is
// made. A panel whose maker answers null is left out.
namespace PDEPanelFactory {
struct Generic {
    const char* className;
    const char* failureMessage;
    std::function<std::shared_ptr<PDEPanel>(std::shared_ptr<PDEBundle>, std::shared_ptr<MRPDE_MACChangeHandlerModel>)> create;
};
struct Standalone {
    const char* className;
    std::function<std::shared_ptr<PDEPanel>(PDEPluginCallback*, std::shared_ptr<PDEBundle>)> create;
};
// Graphics/Paper, Job Handling, Finishing, Security.
const QList<Generic>& genericPanels();
// Secure Release, Advanced Options, Manual Duplex, Special Pages, Manual Margin.
const QList<Standalone>& standalonePanels();
}
