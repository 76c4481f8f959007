#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

#include <cups/http.h>

// Whether the server's queues are set up for the utility, and setting one up
// or back. A queue is set up when the server accepts the update job's own
// document format for it: only then does the update job reach the driver
// filter instead of the printer. Works the same for a remote server.
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
        ServerLacksRoute, // the server does not know the format or the filter
        Failed,
    };
    struct Result {
        Outcome outcome;
        QString detail; // the server's own words, where it gave any
    };

    static State state(const QString &queue);
    // Whether the PPD as the server stores it lost the route: a PPD cut while
    // cupsd wrote it. Read from the file itself, since the queue's listed
    // formats follow a rewritten PPD only some time later. False when the
    // PPD cannot be fetched at all.
    static bool routeLost(const QString &queue);
    // Every queue of the server, sorted by name; nullopt when it cannot be asked.
    static std::optional<QList<Queue>> queues();

    // Adds the route (and the settings' stored defaults) to the queue's PPD and
    // installs it on the server as lpadmin -P does: device, options, state and
    // every other PPD line stay. Before the queue changes, a stopped scratch
    // queue shows whether the server can route the format at all.
    static Result setUp(const QString &queue);
    // Takes the route out again; the saved settings stay in the PPD.
    static Result remove(const QString &queue);

private:
    static State state(http_t *http, const QString &queue);
    using Change = std::function<Result(http_t *http, State before, const QByteArray &ppd)>;
    // Runs a change on the queue's PPD as the server has it, unless the
    // server, the queue or its PPD is missing.
    static Result changeQueue(const QString &queue, const Change &change);
    static QByteArray queuePpd(http_t *http, const QString &queue);
    static Result checkServerRoutes(http_t *http, const QByteArray &ppd);
    static Result install(http_t *http, const QString &queue, const QByteArray &ppd, bool create);
    static void deleteQueue(http_t *http, const QString &queue);
};
