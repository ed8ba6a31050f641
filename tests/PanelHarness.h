#pragma once
// One model-driven panel opened on a PPD the way the dialog opens it (made,
// restored, shown, in English), and its controls driven the way a person
// drives them.
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

template <class EH, class Controller>
struct PanelHarness {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> model;
    std::shared_ptr<EH> eh;
    Controller* controller = nullptr;

    static std::unique_ptr<PanelHarness> open(const QString& ppd)
    {
        auto p = std::make_unique<PanelHarness>();
        if (!(p->host = TestSupport::openHost(ppd)))
            return nullptr;
        auto bundle = PDEBundle::embedded();
        bundle->setLanguage(QStringLiteral("en"));
        p->model = std::make_shared<MRPDE_MACChangeHandlerModel>(bundle, p->host.get());
        if (!(p->eh = EH::create(bundle, p->model)))
            return nullptr;
        p->controller = static_cast<Controller*>(p->eh->controller());
        p->host->setPanels({p->eh.get()});
        QString error;
        p->eh->restoreValuesAndReturnError(&error);
        p->eh->panelView()->show();
        return p;
    }
    QString value(const QString& key) const
    {
        PDEFeaturePtr f = model->featureWithKey(key);
        return f && f->currentValue() ? f->currentValue()->keyword() : QString();
    }
};

// A standalone panel on a host with job options, restored and shown as the
// dialog does; setUp runs on the panel before it is restored.
template <class P>
struct Opened {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<P> panel;
    QString marked(const QString& key) const
    {
        for (const auto& [k, v] : host->jobOptions())
            if (k == key)
                return v;
        return QString();
    }
};
template <class P, class F = void (*)(P&)>
Opened<P> openPanel(const QString& ppd, const QString& options = {}, F setUp = [](P&) {})
{
    Opened<P> o{TestSupport::openHost(ppd), nullptr};
    QString error;
    if (o.host && !options.isEmpty() && !o.host->applyOptions(options, &error))
        qWarning("%s", qPrintable(error));
    if (o.host && (o.panel = P::create(o.host.get(), PDEBundle::embedded()))) {
        setUp(*o.panel);
        o.panel->restoreValuesAndReturnError(nullptr);
        o.panel->willShow();
    }
    return o;
}

// Picks an item with the keyboard, from the top: each item passed is chosen on the way.
inline void pick(QComboBox* box, const QString& title)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < box->count() && box->currentText() != title; ++i)
        QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), title);
}

// Replaces a field's text by typing.
inline void type(QLineEdit* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}
