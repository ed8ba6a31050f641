#pragma once
#include <QByteArray>
#include <QIcon>
#include <QObject>
#include <QSize>
#include <QString>

class QLabel;

// Puts a picture file into a label, decoded only when the label is first
// shown: panels carry pictures on tabs and pages the user may never open, and
// a headless run shows none. The file's header is read at once, so a missing
// or unreadable picture is known immediately, and until it is decoded the
// label asks for the room the picture will take, so that layouts worked out
// before the first showing come out the same.
class PDELazyPicture : public QObject {
    Q_OBJECT

public:
    // Shows the picture at path in label. An empty path, or a file that is
    // not a readable picture, empties the label and returns false.
    static bool set(QLabel* label, const QString& path);
    // An icon of the picture at path, decoded when first drawn (QIcon's own
    // file icons probe every image plug-in at once); a null icon when the file
    // is not a readable picture.
    static QIcon icon(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PDELazyPicture(QLabel* label, const QString& path, const QByteArray& format, const QSize& room);
    // The picture's size from the file's header (invalid when the file is
    // not a readable picture) and the format to read it in: its suffix's when
    // that reads it, so that Qt's image plug-ins (each a library) are not
    // loaded to probe its content; empty when only probing tells.
    static QSize probe(const QString& path, QByteArray* format);
    // Gives the label back the minimum size it had of its own.
    void release();

    QLabel* m_label;
    QString m_path;
    QByteArray m_format;
    QSize m_ownMinimumSize;
};
