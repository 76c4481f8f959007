#pragma once

#include <QString>

// What the print server says of a queue's printer beyond its PPD: whether the
// queue is stopped, and where it sends its jobs, whose host is a good guess at
// the printer's address where the queue has none stored.
class OVQueueDevice {
public:
    struct Info {
        bool stopped = false;
        QString host; // empty when the device URI names no network host
    };

    // Asks the server in the calling thread; a server that does not answer
    // gives the empty Info.
    static Info ask(const QString &queue);
    // The host of socket://, ipp://, ipps://, lpd://, http:// and https://
    // device URIs; empty for any other.
    static QString hostOf(const QString &deviceUri);
};
