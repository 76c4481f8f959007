#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <sys/types.h>

// A child process for the peers and the tests, started with posix_spawn. ThreadSanitizer keeps
// track of the test's threads across posix_spawn; after a fork from a threaded test it loses
// the locks and atomics of the thread that forked and reports every later hand-over as a race.
// The child's standard input is the given input (else /dev/null); its standard output and error
// are kept in memory files, read once it has ended, so a child that prints much never blocks on
// a full pipe that nobody reads.
class SpawnedProcess {
public:
    // Variables set over this process's own environment.
    using Environment = QMap<QByteArray, QByteArray>;

    SpawnedProcess() = default;
    SpawnedProcess(const SpawnedProcess &) = delete;
    SpawnedProcess &operator=(const SpawnedProcess &) = delete;
    // Kills a child that still runs, and waits for it.
    ~SpawnedProcess();

    // Each setting applies to the next start.
    void setEnvironment(const Environment &environment) { m_environment = environment; }
    const Environment &environment() const { return m_environment; }
    void setInput(const QByteArray &input) { m_input = input; }
    // Standard error goes where standard output goes.
    void setChannelsMerged() { m_merged = true; }
    // Both channels go to this file instead, which is readable while the child runs.
    void setOutputFile(const QString &path) { m_outputFile = path; }
    // The child gets SIGTERM when the thread that started it ends: a test binary that crashes
    // leaves no peer running.
    void setEndsWithStarter() { m_endsWithStarter = true; }

    // Starts the program, found on PATH; false (see errorText) if it could not run.
    bool start(const QString &program, const QStringList &arguments);
    bool isRunning() const;
    // 0 once the child has been waited for.
    pid_t processId() const { return m_pid; }
    // False if the child still runs after the timeout.
    bool waitForFinished(int timeoutMs);
    // -1 unless the child exited by itself (a signal ended it, or it still runs).
    int exitCode() const { return m_exitCode; }
    QByteArray standardOutput() const { return contents(m_outputFd); }
    QByteArray standardError() const { return contents(m_errorFd); }
    QString errorText() const { return m_error; }
    // SIGTERM, SIGKILL, SIGSTOP, SIGCONT...; nothing once the child has been waited for.
    void signal(int number) const;

    // Runs the program to its end (at most a minute); its exit code, -1 if it did not exit.
    static int execute(const QString &program, const QStringList &arguments);

private:
    static QByteArray contents(int fd);
    bool spawn(const QStringList &command);
    void closeFiles();

    Environment m_environment;
    QByteArray m_input;
    QString m_outputFile;
    bool m_merged = false;
    bool m_endsWithStarter = false;
    pid_t m_pid = 0;
    int m_exitCode = -1;
    int m_inputFd = -1;
    int m_outputFd = -1;
    int m_errorFd = -1;
    QString m_error;
};
