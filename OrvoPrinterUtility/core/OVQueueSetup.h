#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

#include <cups/http.h>

// Whether the server's queues are set up for the utility, and setting one up
// or back. A queue is set up when the server accepts the update job's own
// document format for it (the server has the format's route to the driver
// filter) and its PPD carries the set-up line (without which the filter
// stores nothing). Works the same for a remote server.
class OVQueueSetup {
public:
    enum class State { SetUp, NotSetUp, QueueUnknown, ServerUnreachable };

    struct Queue {
        QString name;
        QString description;
        QString makeAndModel;
        bool setUp = false;
    };

    enum class Outcome {
        Changed,
        Unchanged, // already as asked
        ServerUnreachable,
        QueueUnknown,
        NoPPD,            // a raw or driverless-without-PPD queue
        NotAuthorized,    // the server refused the administrator operation
        ServerLacksRoute, // the server does not know the format, its route or the filter
        Failed,
    };
    struct Result {
        Outcome outcome;
        QString detail; // the server's own words, where it gave any
    };

    static State state(const QString &queue);
    // Whether the PPD as the server stores it lost the set-up line: a PPD cut while
    // cupsd wrote it. Read from the file itself, since the queue's listed
    // formats follow a rewritten PPD only some time later. False when the
    // PPD cannot be fetched at all.
    static bool routeLost(const QString &queue);
    // Every queue of the server, sorted by name; nullopt when it cannot be asked.
    static std::optional<QList<Queue>> queues();

    // Adds the set-up line (and the settings' stored defaults) to the queue's
    // PPD and installs it on the server as lpadmin -P does: device, options,
    // state and every other PPD line stay.
    static Result setUp(const QString &queue);
    // Takes the set-up line out again; the saved settings stay in the PPD.
    static Result remove(const QString &queue);

private:
    static State state(http_t *http, const QString &queue);
    static State routeState(http_t *http, const QString &queue);
    using Change = std::function<Result(http_t *http, bool routed, const QByteArray &ppd)>;
    // Runs a change on the queue's PPD as the server has it, unless the
    // server, the queue or its PPD is missing.
    static Result changeQueue(const QString &queue, const Change &change);
    static QByteArray queuePpd(http_t *http, const QString &queue);
    static Result install(http_t *http, const QString &queue, const QByteArray &ppd);
};
