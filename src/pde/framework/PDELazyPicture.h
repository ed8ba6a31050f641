#pragma once
#include <QString>

class QLabel;

// Puts a picture file into a label, decoded only when the label is first
// shown (PDEWhenShown). The file's header is read at once, so a missing or
// unreadable picture is known immediately.
class PDELazyPicture {
public:
    // Shows the picture at path in label. An empty path, or a file that is
    // not a readable picture, empties the label and returns false.
    static bool set(QLabel* label, const QString& path);
};
