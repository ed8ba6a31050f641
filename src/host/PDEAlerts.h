#pragma once
#include <QString>
#include <functional>

// The dialog's alert service. In a window it shows a message box; without
// one it writes the alert to stderr and answers the default button.
class PDEAlerts {
public:
    enum Button { DefaultButton = 1, AlternateButton = 0, OtherButton = -1 };

    struct Alert {
        QString title, message, defaultButton, alternateButton, otherButton;
        bool informational = false;
    };
    using Handler = std::function<int(const Alert&)>;

    static int runAlertPanel(const Alert& alert);
    static void beep();
    // Replaces how alerts are shown (the window installs message boxes; tests
    // install their own answer). A null handler restores the stderr form.
    static void setHandler(Handler handler);
    // The text of the last alert shown, for the command line's error output.
    static QString lastAlertText();
    // Forgets the last alert, so that the next one can be told apart.
    static void clearLastAlertText();
    // Whether the user sees windows: a handler shows the alerts and the
    // display is a real one (not the offscreen or minimal platform). Panels
    // ask before opening a window of their own.
    static bool showsWindows();
};
