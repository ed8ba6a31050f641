#pragma once
#include <QAbstractTableModel>
#include <QList>
#include <QMap>
#include <QString>
#include <functional>

// One entry of the special-pages list: "PageType", "Page", "CoverOption",
// "DuplexOption", "PaperSource", "PaperType", all text.
using MRSpecialPageRow = QMap<QString, QString>;

// The special-pages table: its rows are the panel's list; the texts of its
// cells come from the panel. While the list is suppressed (a feature that
// excludes special pages is on) the table shows no rows, and the list is kept.
class MRPageListTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using CellText = std::function<QString(const MRSpecialPageRow& row, int column)>;
    static constexpr int kColumns = 2;

    explicit MRPageListTableModel(CellText cellText, QObject* parent = nullptr);

    const QList<MRSpecialPageRow>& rows() const { return m_rows; }
    void setRows(const QList<MRSpecialPageRow>& rows);
    bool suppressed() const { return m_suppressed; }
    void setSuppressed(bool suppressed);
    void setHeaders(const QStringList& headers);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    CellText m_cellText;
    QList<MRSpecialPageRow> m_rows;
    QStringList m_headers;
    bool m_suppressed = false;
};
