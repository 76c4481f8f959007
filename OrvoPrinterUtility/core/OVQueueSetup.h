#pragma once

#include "OrvoSavers.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

#include <cups/http.h>
#include <cups/ipp.h>

// Whether the server's queues are set up for the utility, and setting one up
// or back. A queue is set up when the server accepts the update job's own
// document format for it (the server has the format's route to the driver
// filter) and its PPD carries the set-up line (without which the filter
// stores nothing). Works the same for a remote server.
//
// A PPD is damaged when a queue with a driver has none, when libcups cannot
// open it, or when it holds settings but was cut short (no page sizes left):
// what a server that died or ran out of disk while it rewrote the PPD
// leaves. Such a queue is never called set up; repair() rebuilds its PPD
// from the queue's driver.
class OVQueueSetup {
public:
    enum class State { SetUp, NotSetUp, Damaged, QueueUnknown, ServerUnreachable };

    struct Queue {
        QString name;
        QString description;
        QString makeAndModel;
        bool setUp = false;
        bool damaged = false;
        OrvoSavers savers;
    };

    // The queue's state and who may save on it, from one look at the server.
    struct Access {
        State state = State::ServerUnreachable;
        OrvoSavers savers;

        // Whether the user this process acts as to the server (cupsUser(),
        // -U of the command line) is one of them: the one check before any
        // save, so that a refused user learns so before anything is sent.
        bool userMaySave() const;
    };

    enum class Outcome {
        Changed,
        Unchanged, // already as asked
        ServerUnreachable,
        QueueUnknown,
        NoPPD,            // a raw or driverless-without-PPD queue
        Damaged,          // the queue's PPD is damaged: repair() mends it
        NotAuthorized,    // the server refused the administrator operation
        ServerLacksRoute, // the server does not know the format, its route or the filter
        NoDriver,         // repair: the server has no driver for the queue's make and model
        // The server stopped answering after the change was sent: whether it
        // took it shows once it answers; running the same change again
        // settles it, since each change is idempotent.
        Unknown,
        Failed,
    };
    struct Result {
        Outcome outcome;
        QString detail; // the server's own words, where it gave any; NoDriver: make and model
    };

    // The queues an earlier version created to test a set-up and may have
    // left behind: never listed, removed by the next change.
    static bool isScratchQueue(const QString &name);

    static State state(const QString &queue);
    static Access access(const QString &queue);
    // Whether the PPD as the server stores it lost the set-up line: a PPD cut while
    // cupsd wrote it. Read from the file itself, since the queue's listed
    // formats follow a rewritten PPD only some time later. False when the
    // PPD cannot be fetched at all.
    static bool routeLost(const QString &queue);
    // Every queue of the server, sorted by name; nullopt when it cannot be asked.
    static std::optional<QList<Queue>> queues();

    // Adds the set-up line (and the settings' stored defaults) to the queue's
    // PPD and installs it on the server as lpadmin -P does: device, options,
    // state and every other PPD line stay. With savers, the PPD names them as
    // who may save; without, the queue keeps whom it named.
    static Result setUp(const QString &queue, const std::optional<OrvoSavers> &savers = {});
    // Takes the set-up line out again; the saved settings and who may save
    // stay in the PPD, so that setting up again opens the queue to no one new.
    static Result remove(const QString &queue);
    // Rebuilds the PPD of a queue that is not set up (a damaged one above all)
    // from the queue's driver on the server, keeps every setting the old PPD
    // still holds whole, sets it up, installs it and checks the result.
    static Result repair(const QString &queue);

private:
    // What the server says of a queue, and its PPD as fetched.
    struct Found {
        State route = State::ServerUnreachable; // SetUp: the server routes the update format
        QString makeAndModel;
        QString deviceUri;
        bool hasPpd = false;
        bool opens = false; // libcups opens the PPD
        QByteArray ppd;
    };

    static State state(http_t *http, const QString &queue);
    static State state(const Found &found);
    static bool damaged(const Found &found);
    static Found find(http_t *http, const QString &queue);
    // Fetches the queue's PPD into found; false when the server did not answer.
    static bool fetchPpd(http_t *http, const QString &queue, Found &found);
    using Change = std::function<Result(http_t *http, const Found &found)>;
    // Runs a change on the queue as the server has it, unless the server or
    // the queue is missing, after removing leftover scratch queues.
    static Result changeQueue(const QString &queue, const Change &change);
    // The same for a change of the queue's PPD text, which needs a whole one.
    static Result changePpd(const QString &queue, const Change &change);
    static void removeScratchQueues(http_t *http);
    static Result install(http_t *http, const QString &queue, const QByteArray &ppd);
    // The PPD the driver makes for the queue (lpadmin -m), into fresh, which
    // holds the queue's PPD before.
    static Result driverPpd(http_t *http, const QString &queue, const QByteArray &ppdName,
                            QByteArray &fresh);
    // Empty when the server has none; nullopt when it did not answer.
    static std::optional<QByteArray> driverName(http_t *http, const Found &found);
    // What a sent change came to, from the server's answer (null: none).
    static Result answered(ipp_t *response);
    // After a change, whether the queue is as asked; the PPD it had before
    // is put back when the server answers that it is not.
    static Result checked(http_t *http, const QString &queue, const QByteArray &before);
};
