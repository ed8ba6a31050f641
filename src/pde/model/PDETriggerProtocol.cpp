#include "PDETriggerProtocol.h"

void PDETriggerProtocol::setIsSet(bool isSet)
{
    m_isSet = isSet;
    emit isSetChanged(this);
}

QMetaObject::Connection PDETriggerProtocol::observeIsSet(QObject* receiver, std::function<void(PDETriggerProtocol*)> handler,
                                                         bool initial)
{
    QMetaObject::Connection c = connect(this, &PDETriggerProtocol::isSetChanged, receiver, handler, Qt::DirectConnection);
    if (initial)
        handler(this);
    return c;
}
