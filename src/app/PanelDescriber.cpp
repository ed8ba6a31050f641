#include "PanelDescriber.h"

#include "PDESecrets.h"

#include "PDEPanel.h"
#include "PDEStepper.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

namespace {
// The page of the nearest tab view that holds the widget, if any.
QWidget* tabPageOf(QWidget* w, QWidget* view)
{
    for (QWidget* p = w; p && p != view; p = p->parentWidget()) {
        QWidget* parent = p->parentWidget();
        if (parent && parent->parentWidget() && qobject_cast<QTabWidget*>(parent->parentWidget()))
            return p;  // p is a page in the tab widget's stack
    }
    return nullptr;
}

QJsonValue orNull(const QString& s)
{
    return s.isNull() ? QJsonValue() : QJsonValue(s);
}

void describePopUp(QComboBox* c, QJsonObject& o)
{
    QJsonArray items, disabled;
    const auto* model = qobject_cast<const QStandardItemModel*>(c->model());
    for (int i = 0; i < c->count(); ++i) {
        items.append(c->itemText(i));
        const QStandardItem* item = model ? model->item(i) : nullptr;
        const bool enabled = item ? item->isEnabled() : (c->model()->flags(c->model()->index(i, 0)) & Qt::ItemIsEnabled);
        if (!enabled)
            disabled.append(c->itemText(i));
    }
    o[QStringLiteral("type")] = QStringLiteral("popup");
    o[QStringLiteral("value")] = c->currentIndex() >= 0 ? QJsonValue(c->currentText()) : QJsonValue();
    o[QStringLiteral("items")] = items;
    o[QStringLiteral("disabledItems")] = disabled;
}

void describeTable(QTableView* t, QJsonObject& o)
{
    QJsonArray rows;
    if (QAbstractItemModel* m = t->model()) {
        for (int r = 0; r < m->rowCount(); ++r) {
            QJsonArray row;
            for (int c = 0; c < m->columnCount(); ++c)
                row.append(m->data(m->index(r, c)).toString());
            rows.append(row);
        }
    }
    o[QStringLiteral("type")] = QStringLiteral("table");
    o[QStringLiteral("rows")] = rows;
}
}

QJsonObject PanelDescriber::describeControl(QWidget* w, QWidget* view)
{
    QJsonObject o;
    if (auto* c = qobject_cast<QComboBox*>(w)) {
        describePopUp(c, o);
    } else if (auto* r = qobject_cast<QRadioButton*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("radio");
        o[QStringLiteral("checked")] = r->isChecked();
        o[QStringLiteral("title")] = r->text();
    } else if (auto* b = qobject_cast<QCheckBox*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("checkbox");
        o[QStringLiteral("checked")] = b->isChecked();
        o[QStringLiteral("title")] = b->text();
    } else if (auto* p = qobject_cast<QPushButton*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("button");
        o[QStringLiteral("checked")] = p->isChecked();
        o[QStringLiteral("title")] = p->text();
    } else if (auto* t = qobject_cast<QToolButton*>(w); t && t->isCheckable()) {
        // A disclosure button (a stepper's arrows are not checkable).
        o[QStringLiteral("type")] = QStringLiteral("button");
        o[QStringLiteral("checked")] = t->isChecked();
        o[QStringLiteral("title")] = t->text();
    } else if (auto* e = qobject_cast<QLineEdit*>(w)) {
        // A password, or a field that shows a PIN: its length only, never the text.
        if (e->echoMode() == QLineEdit::Password || e->echoMode() == QLineEdit::NoEcho
            || PDESecrets::isSecretKey(e->property("pdeOptionKey").toString())) {
            o[QStringLiteral("type")] = QStringLiteral("securefield");
            o[QStringLiteral("length")] = int(e->text().size());
        } else {
            o[QStringLiteral("type")] = QStringLiteral("textfield");
            o[QStringLiteral("text")] = e->text();
        }
    } else if (auto* d = qobject_cast<QDateTimeEdit*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("datepicker");
        o[QStringLiteral("value")] = d->dateTime().toString(QStringLiteral("MM/dd/yyyy//HH:mm"));
    } else if (auto* st = qobject_cast<PDEStepper*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("stepper");
        o[QStringLiteral("value")] = st->value();
    } else if (auto* s = qobject_cast<QAbstractSpinBox*>(w)) {
        o[QStringLiteral("type")] = QStringLiteral("stepper");
        o[QStringLiteral("value")] = s->property("value").toDouble();
    } else if (auto* t = qobject_cast<QTabWidget*>(w)) {
        QJsonArray tabs;
        for (int i = 0; i < t->count(); ++i)
            tabs.append(t->tabText(i));
        o[QStringLiteral("type")] = QStringLiteral("tabview");
        o[QStringLiteral("tabs")] = tabs;
        o[QStringLiteral("selected")] = t->currentIndex() >= 0 ? QJsonValue(t->tabText(t->currentIndex())) : QJsonValue();
    } else if (auto* tv = qobject_cast<QTableView*>(w)) {
        describeTable(tv, o);
    } else if (auto* l = qobject_cast<QLabel*>(w)) {
        // A picture label carries the picture's resource name in "imageName".
        const QVariant image = l->property("imageName");
        if (image.isValid()) {
            o[QStringLiteral("type")] = QStringLiteral("image");
            o[QStringLiteral("image")] = orNull(image.toString());
        } else {
            o[QStringLiteral("type")] = QStringLiteral("label");
            o[QStringLiteral("text")] = l->text();
        }
    } else {
        return o;
    }
    QWidget* page = tabPageOf(w, view);
    o[QStringLiteral("enabled")] = w->isEnabled();
    o[QStringLiteral("visible")] = page ? (w == page || w->isVisibleTo(page)) : w->isVisibleTo(view);
    return o;
}

QJsonObject PanelDescriber::describeControls(QWidget* view)
{
    QJsonObject controls;
    if (!view)
        return controls;
    for (QWidget* w : view->findChildren<QWidget*>()) {
        const QString name = w->objectName();
        if (name.isEmpty() || name.startsWith(QLatin1String("qt_")))
            continue;
        const QJsonObject o = describeControl(w, view);
        if (!o.isEmpty())
            controls[name] = o;
    }
    return controls;
}

QJsonObject PanelDescriber::describe(PDEPanel& panel)
{
    QJsonObject o;
    o[QStringLiteral("kind")] = panel.panelKind();
    o[QStringLiteral("name")] = panel.panelName();
    o[QStringLiteral("supportedPPDOptionKeys")] = QJsonArray::fromStringList(panel.supportedPPDOptionKeys());
    QVariantMap summary = panel.summaryInfo();
    for (auto it = summary.begin(); it != summary.end(); ++it)
        if (PDESecrets::isSecretKey(it.key()) && !it.value().toString().isEmpty())
            it.value() = QStringLiteral("<hidden>");
    o[QStringLiteral("summaryInfo")] = QJsonObject::fromVariantMap(summary);
    o[QStringLiteral("controls")] = describeControls(panel.panelView());
    return o;
}
