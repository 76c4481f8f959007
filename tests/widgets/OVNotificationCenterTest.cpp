// Synchronous delivery by name, repeated observers, and observers that come
// and go while an event is being delivered.
#include "OVNotificationCenter.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(OVNotificationCenterTest, deliversByNameSynchronouslyAndTwiceWhenAddedTwice) {
    OVNotificationCenter center;
    QStringList calls;
    const auto observer = [&](const OVNotification &n) {
        calls.append(n.name + ":" + n.userInfo.value("MethodName").toString());
    };
    const auto first = center.addObserver("A", observer);
    center.addObserver("A", observer);
    center.addObserver("B", observer);

    center.postNotification("A", QVariant(), {{"MethodName", "textDidChange"}});
    EXPECT_EQ(calls, QStringList(2, "A:textDidChange"));

    center.removeObserver(first);
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls.size(), 3);
}

TEST(OVNotificationCenterTest, carriesPosterAsObject) {
    OVNotificationCenter center;
    QObject poster;
    QObject *seen = nullptr;
    center.addObserver("A", [&](const OVNotification &n) { seen = n.sender(); });
    center.postNotification("A", &poster);
    EXPECT_EQ(seen, &poster);
    center.postNotification("A", QVariant(QStringLiteral("SelctionChanged")));
    EXPECT_EQ(seen, nullptr);
}

TEST(OVNotificationCenterTest, observerGoesAwayWithItsContext) {
    OVNotificationCenter center;
    int calls = 0;
    auto context = std::make_unique<QObject>();
    center.addObserver(
        "A", [&](const OVNotification &) { ++calls; }, context.get());
    center.postNotification("A", QVariant());
    context.reset();
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, 1);
}

TEST(OVNotificationCenterTest, observersChangingDuringDelivery) {
    OVNotificationCenter center;
    QStringList calls;
    OVNotificationCenter::Token second = 0;
    center.addObserver("A", [&](const OVNotification &) {
        calls.append("first");
        center.removeObserver(second);
        center.addObserver("A", [&](const OVNotification &) { calls.append("late"); });
    });
    second = center.addObserver("A", [&](const OVNotification &) { calls.append("second"); });

    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, QStringList{"first"});
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, (QStringList{"first", "first", "late"}));
}

TEST(OVNotificationCenterTest, defaultCenterIsOneInstance) {
    EXPECT_EQ(&OVNotificationCenter::defaultCenter(), &OVNotificationCenter::defaultCenter());
}

} // namespace
