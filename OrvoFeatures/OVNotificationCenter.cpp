#include "OVNotificationCenter.h"

#include <vector>

OVNotificationCenter &OVNotificationCenter::defaultCenter() {
    static OVNotificationCenter center;
    return center;
}

OVNotificationCenter::~OVNotificationCenter() {
    for (const auto &[token, entry] : m_entries) {
        QObject::disconnect(entry.contextGone);
    }
}

OVNotificationCenter::Token OVNotificationCenter::addObserver(const QString &name,
                                                              Observer observer, QObject *context) {
    const Token token = m_nextToken++;
    Entry entry{name, std::move(observer), context != nullptr, context, {}};
    if (context != nullptr) {
        entry.contextGone = QObject::connect(context, &QObject::destroyed,
                                             [this, token] { removeObserver(token); });
    }
    m_entries.emplace(token, std::move(entry));
    return token;
}

void OVNotificationCenter::removeObserver(Token token) {
    const auto found = m_entries.find(token);
    if (found == m_entries.end()) {
        return;
    }
    QObject::disconnect(found->second.contextGone);
    m_entries.erase(found);
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
