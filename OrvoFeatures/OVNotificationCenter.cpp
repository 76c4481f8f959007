#include "OVNotificationCenter.h"

#include <vector>

OVNotificationCenter &OVNotificationCenter::defaultCenter() {
    static OVNotificationCenter center;
    return center;
}

OVNotificationCenter::Token OVNotificationCenter::addObserver(const QString &name,
                                                              Observer observer, QObject *context) {
    const Token token = m_nextToken++;
    m_entries.emplace(token, Entry{name, std::move(observer), context != nullptr, context});
    if (context != nullptr) {
        QObject::connect(context, &QObject::destroyed, [this, token] { removeObserver(token); });
    }
    return token;
}

void OVNotificationCenter::removeObserver(Token token) {
    m_entries.erase(token);
}

void OVNotificationCenter::postNotification(const QString &name, const QVariant &object,
                                            const QVariantMap &userInfo) {
    // Observers may add or remove observers while being called: walk a
    // snapshot of tokens and skip the ones removed meanwhile.
    std::vector<Token> tokens;
    for (const auto &[token, entry] : m_entries) {
        if (entry.name == name) {
            tokens.push_back(token);
        }
    }
    const OVNotification notification{name, object, userInfo};
    for (const Token token : tokens) {
        const auto found = m_entries.find(token);
        if (found == m_entries.end() || (found->second.hasContext && !found->second.context)) {
            continue;
        }
        const Observer observer = found->second.observer;
        observer(notification);
    }
}

void OVNotificationCenter::postNotification(const QString &name, QObject *object,
                                            const QVariantMap &userInfo) {
    postNotification(name, QVariant::fromValue(object), userInfo);
}
