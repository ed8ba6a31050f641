#pragma once
#include <QObject>
#include <QString>
#include <functional>

class QWidget;

// Work on a widget that only matters once the user sees it (decoding a
// picture, sizing a view), done at once when the widget is visible, else at
// its next showing. Panels build views for tabs and pages the user may never
// open, and a headless run never shows any.
class PDEWhenShown : public QObject {
    Q_OBJECT

public:
    // Runs work on widget now or when it is next shown. A later call with the
    // same key replaces work still waiting.
    static void run(QWidget* widget, const QString& key, std::function<void()> work);
    // Drops the work still waiting under key, if any.
    static void cancel(QWidget* widget, const QString& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PDEWhenShown(QWidget* widget, const QString& key, std::function<void()> work);

    std::function<void()> m_work;
};
