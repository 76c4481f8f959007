// Synchronous delivery by name, repeated observers, and observers that come
// and go while an event is being delivered.
#include "OVNotificationCenter.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(OVNotificationCenterTest, deliversByNameSynchronouslyAndTwiceWhenAddedTwice) {
    OVNotificationCenter center;
    QObject poster;
    QStringList calls;
    const auto observer = [&](const OVNotification &n) {
        EXPECT_EQ(n.sender(), &poster);
        calls.append(n.name + ":" + n.userInfo.value("MethodName").toString());
    };
    const auto first = center.addObserver("A", observer);
    center.addObserver("A", observer);
    center.addObserver("B", observer);
    center.postNotification("A", &poster, {{"MethodName", "textDidChange"}});
    EXPECT_EQ(calls, QStringList(2, "A:textDidChange"));
    center.removeObserver(first);
    center.postNotification("A", &poster);
    EXPECT_EQ(calls.size(), 3);
}

// An observer removed during delivery is not called, one added then waits for
// the next event, one whose context is gone is never called again.
TEST(OVNotificationCenterTest, observersComingAndGoing) {
    OVNotificationCenter center;
    QStringList calls;
    auto context = std::make_unique<QObject>();
    center.addObserver(
        "A", [&](const OVNotification &) { calls.append("context"); }, context.get());
    OVNotificationCenter::Token second = 0;
    center.addObserver("A", [&](const OVNotification &) {
        calls.append("first");
        center.removeObserver(second);
        center.addObserver("A", [&](const OVNotification &) { calls.append("late"); });
    });
    second = center.addObserver("A", [&](const OVNotification &) { calls.append("second"); });
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, (QStringList{"context", "first"}));
    context.reset();
    calls.clear();
    center.postNotification("A", QVariant());
    EXPECT_EQ(calls, (QStringList{"first", "late"}));

    // A context that outlives its centre must not reach back into it.
    auto survivor = std::make_unique<QObject>();
    auto shortLived = std::make_unique<OVNotificationCenter>();
    shortLived->addObserver(
        "A", [](const OVNotification &) {}, survivor.get());
    shortLived.reset();
}

} // namespace
