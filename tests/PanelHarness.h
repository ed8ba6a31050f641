#pragma once
// Panels opened on a PPD the way the dialog opens them, and their controls
// driven the way a person drives them.
#include "PDEBundle.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// A standalone panel on a host with job options, restored and shown as the
// dialog does; setUp runs on the panel before it is restored.
template <class P>
struct Opened {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<P> panel;
    QString marked(const QString& key) const { return TestSupport::optionMap(host->jobOptions()).value(key); }
};
template <class P, class F = void (*)(P&)>
Opened<P> openPanel(const QString& ppd, const QString& options = {}, F setUp = [](P&) {})
{
    Opened<P> o{TestSupport::openHost(ppd, options), nullptr};
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
