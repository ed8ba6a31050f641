#include "PanelStack.h"

#include "PDEPanel.h"
#include "PDESecrets.h"
#include "PrintDialogHost.h"
#include "ui_PanelStack.h"

#include <QCollator>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QSignalBlocker>
#include <algorithm>

namespace {
QString valueText(const QVariant& v)
{
    if (v.typeId() == QMetaType::QStringList || v.typeId() == QMetaType::QVariantList)
        return v.toStringList().join(QStringLiteral(", "));
    return v.toString();
}
}

PanelStack::PanelStack(QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::PanelStack>())
{
    ui->setupUi(this);
    ui->panelList->setUniformItemSizes(true);
    ui->summaryTree->header()->setStretchLastSection(true);
    connect(ui->panelList, &QListWidget::currentRowChanged, this, &PanelStack::rowChanged);
}

PanelStack::~PanelStack()
{
    // The panels own their views: the scroll area must not delete the one shown.
    detachView();
}

void PanelStack::clear(bool tellPanel)
{
    if (PDEPanel* shown = currentPanel(); shown && tellPanel)
        shown->shouldHide();
    detachView();
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->clear();
    }
    m_panels.clear();
    m_ppd = nullptr;
    m_currentRow = -1;
}

void PanelStack::setPanels(const QList<std::shared_ptr<PDEPanel>>& panels, ppd_file_s* ppd, int selectRow)
{
    m_panels = panels;
    m_ppd = ppd;
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->clear();
        for (const auto& p : std::as_const(m_panels))
            ui->panelList->addItem(p->panelName());
        auto* summary = new QListWidgetItem(tr("Summary"));
        QFont f = summary->font();
        f.setItalic(true);
        summary->setFont(f);
        ui->panelList->addItem(summary);
    }
    m_currentRow = -1;
    const int row = qBound(0, selectRow, ui->panelList->count() - 1);
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->setCurrentRow(row);
    }
    switchTo(row);
}

void PanelStack::appendPanel(std::shared_ptr<PDEPanel> panel)
{
    const bool onSummary = m_currentRow >= 0 && !currentPanel();
    m_panels.append(panel);
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->insertItem(int(m_panels.size()) - 1, panel->panelName());
        if (onSummary)
            m_currentRow = ui->panelList->count() - 1;
        ui->panelList->setCurrentRow(m_currentRow);
    }
    if (onSummary)
        fillSummary();
}

PDEPanel* PanelStack::currentPanel() const
{
    return panelAt(m_currentRow);
}

int PanelStack::count() const
{
    return ui->panelList->count();
}

PDEPanel* PanelStack::panelAt(int row) const
{
    return row >= 0 && row < m_panels.size() ? m_panels.at(row).get() : nullptr;
}

void PanelStack::selectRow(int row)
{
    ui->panelList->setCurrentRow(row);
}

bool PanelStack::showPanel(const PDEPanel* panel)
{
    for (int row = 0; row < m_panels.size(); ++row) {
        if (m_panels.at(row).get() == panel) {
            selectRow(row);
            return m_currentRow == row;
        }
    }
    return false;
}

void PanelStack::rowChanged(int row)
{
    if (row < 0 || row == m_currentRow)
        return;
    if (switchTo(row))
        return;
    // The panel shown refused to be left: it stays selected.
    const QSignalBlocker blocker(ui->panelList);
    ui->panelList->setCurrentRow(m_currentRow);
    if (PDEPanel* p = currentPanel())
        emit notice(tr("%1 cannot be left yet: check its settings first.").arg(p->panelName()));
}

bool PanelStack::switchTo(int row)
{
    if (row == m_currentRow)
        return true;
    if (PDEPanel* leaving = currentPanel()) {
        if (!leaving->shouldHide())
            return false;
    }
    detachView();
    m_currentRow = row;
    if (PDEPanel* panel = currentPanel()) {
        attachView(panel);
        ui->pageStack->setCurrentWidget(ui->panelPage);
    } else {
        fillSummary();
        ui->pageStack->setCurrentWidget(ui->summaryPage);
    }
    emit currentChanged();
    return true;
}

void PanelStack::attachView(PDEPanel* panel)
{
    QWidget* view = panel->panelView();
    panel->willShow();
    if (!view) {
        auto* label = new QLabel(tr("This panel has no settings to show."));
        label->setAlignment(Qt::AlignCenter);
        m_placeholder = label;
        ui->panelArea->setWidget(label);
        return;
    }
    m_shownViewParent = view->parentWidget();
    m_shownView = view;
    // The view keeps the size its panel gives it (its size hint until the
    // panel sets one); the area around it is made to fit.
    ui->panelArea->setWidget(view);
    fitPanelArea(view->size());
}

void PanelStack::detachView()
{
    QWidget* w = ui->panelArea->takeWidget();
    if (w && w == m_placeholder)
        delete w;
    else if (w && m_shownViewParent)
        w->setParent(m_shownViewParent);
    m_shownView = nullptr;
    m_shownViewParent = nullptr;
}

void PanelStack::fitPanelArea(const QSize& wanted)
{
    if (!wanted.isValid() || wanted.isEmpty())
        return;
    QWidget* top = window();
    const int frame = 2 * ui->panelArea->frameWidth();
    const QSize area = wanted + QSize(frame, frame);
    if (top->layout())
        top->layout()->activate();
    // As large as the panel asks, as far as the screen allows the window to grow.
    const QSize screenSize = screen() ? screen()->availableGeometry().size() : QSize(1280, 900);
    const QSize around = top->size() - ui->panelArea->size();
    const QSize room = (screenSize - around).expandedTo(QSize(240, 160));
    ui->panelArea->setMinimumSize(area.boundedTo(room));
    if (top->layout())
        top->layout()->activate();
    const QSize grown = top->size().expandedTo(top->minimumSizeHint()).boundedTo(screenSize);
    if (grown != top->size())
        top->resize(grown);
}

void PanelStack::panelViewResized()
{
    if (currentPanel() && m_shownView)
        fitPanelArea(m_shownView->size());
}

void PanelStack::refreshSummary()
{
    if (!currentPanel() && m_currentRow >= 0)
        fillSummary();
}

void PanelStack::fillSummary()
{
    QTreeWidget* tree = ui->summaryTree;
    tree->clear();
    auto addGroup = [tree](const QString& title) {
        auto* item = new QTreeWidgetItem(tree, {title});
        QFont f = item->font(0);
        f.setBold(true);
        item->setFont(0, f);
        item->setFirstColumnSpanned(true);
        return item;
    };
    QTreeWidgetItem* job = addGroup(tr("Job"));
    if (m_jobSummary)
        for (const auto& [label, value] : m_jobSummary())
            new QTreeWidgetItem(job, {label, value});
    for (const auto& p : std::as_const(m_panels)) {
        QTreeWidgetItem* group = addGroup(p->panelName());
        const QVariantMap info = p->summaryInfo();
        if (info.isEmpty()) {
            auto* none = new QTreeWidgetItem(group, {tr("No settings to summarize")});
            none->setDisabled(true);
        }
        // Rows by the options' texts, as the user reads them.
        QList<QStringList> rows;
        for (auto it = info.cbegin(); it != info.cend(); ++it) {
            const QString value = PDESecrets::isSecretKey(it.key())
                                      ? tr("(hidden)")
                                      : PrintDialogHost::choiceText(m_ppd, it.key(), valueText(it.value()));
            rows.append({PrintDialogHost::optionText(m_ppd, it.key()), value, it.key()});
        }
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::sort(rows.begin(), rows.end(), [&](const QStringList& a, const QStringList& b) { return collator.compare(a[0], b[0]) < 0; });
        for (const QStringList& row : std::as_const(rows)) {
            auto* item = new QTreeWidgetItem(group, {row[0], row[1]});
            item->setToolTip(0, row[2]);
        }
    }
    tree->expandAll();
    tree->resizeColumnToContents(0);
    tree->scrollToTop();
}

void PanelStack::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        if (QListWidgetItem* summary = ui->panelList->item(ui->panelList->count() - 1))
            summary->setText(tr("Summary"));
        refreshSummary();
    }
    QWidget::changeEvent(event);
}
