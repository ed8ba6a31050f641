#pragma once
#include <QObject>
#include <functional>
#include <memory>

// An observable condition. Every write of isSet notifies the observers, also
// when the value does not change.
class PDETriggerProtocol : public QObject {
    Q_OBJECT
public:
    bool isSet() const { return m_isSet; }
    void setIsSet(bool isSet);
    virtual QString description() const = 0;

    // Observes isSet: handler runs after every write, and once at once when
    // `initial` is set. The connection ends with the receiver.
    QMetaObject::Connection observeIsSet(QObject* receiver, std::function<void(PDETriggerProtocol*)> handler, bool initial);

    // How many observers the state has.
    int observerCount() const { return receivers(SIGNAL(isSetChanged(PDETriggerProtocol*))); }

signals:
    void isSetChanged(PDETriggerProtocol* trigger);

protected:
    bool m_isSet = false;
};

using PDETriggerPtr = std::shared_ptr<PDETriggerProtocol>;
