#include "MRPageListTableModel.h"

#include "PDELog.h"

MRPageListTableModel::MRPageListTableModel(CellText cellText, QObject* parent)
    : QAbstractTableModel(parent), m_cellText(std::move(cellText))
{
}

void MRPageListTableModel::setRows(const QList<MRSpecialPageRow>& rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

void MRPageListTableModel::setSuppressed(bool suppressed)
{
    if (suppressed == m_suppressed)
        return;
    beginResetModel();
    m_suppressed = suppressed;
    endResetModel();
}

void MRPageListTableModel::setHeaders(const QStringList& headers)
{
    m_headers = headers;
    emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
}

int MRPageListTableModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    if (m_suppressed) {
        _PDELog(this, QStringLiteral("return 0 because of poster"));
        return 0;
    }
    return int(m_rows.size());
}

int MRPageListTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant MRPageListTableModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid() || m_suppressed || index.row() >= m_rows.size())
        return QVariant();
    return m_cellText ? m_cellText(m_rows[index.row()], index.column()) : QString();
}

QVariant MRPageListTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DisplayRole && orientation == Qt::Horizontal && section < m_headers.size())
        return m_headers[section];
    return QAbstractTableModel::headerData(section, orientation, role);
}
