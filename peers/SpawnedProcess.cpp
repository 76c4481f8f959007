#include "SpawnedProcess.h"

#include <QDeadlineTimer>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>
#include <vector>

namespace {

constexpr auto pollInterval = std::chrono::milliseconds(5);
constexpr int executeTimeoutMs = 60000;

// This process's environment with the given variables set over it, as NAME=value texts.
std::vector<QByteArray> environmentWith(const SpawnedProcess::Environment &set) {
    std::vector<QByteArray> entries;
    for (char **entry = environ; *entry; ++entry) {
        const QByteArray text(*entry);
        if (!set.contains(text.left(text.indexOf('='))))
            entries.push_back(text);
    }
    for (auto it = set.cbegin(); it != set.cend(); ++it)
        entries.push_back(it.key() + '=' + it.value());
    return entries;
}

// The null-terminated array of pointers that posix_spawn takes; the texts must outlive it.
std::vector<char *> pointersTo(std::vector<QByteArray> &texts) {
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

int memoryFile(const char *name) {
    return memfd_create(name, MFD_CLOEXEC);
}

} // namespace

SpawnedProcess::~SpawnedProcess() {
    if (m_pid > 0) {
        ::kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    closeFiles();
}

bool SpawnedProcess::start(const QString &program, const QStringList &arguments) {
    closeFiles();
    m_exitCode = -1;
    m_error.clear();
    QStringList command;
    if (m_endsWithStarter)
        command << "setpriv"
                << "--pdeathsig"
                << "TERM"
                << "--";
    return spawn(command << program << arguments);
}

bool SpawnedProcess::spawn(const QStringList &command) {
    m_inputFd = memoryFile("input");
    if (::write(m_inputFd, m_input.constData(), size_t(m_input.size())) != m_input.size() ||
        lseek(m_inputFd, 0, SEEK_SET) != 0) {
        m_error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    if (m_outputFile.isEmpty()) {
        m_outputFd = memoryFile("output");
        m_errorFd = m_merged ? -1 : memoryFile("error");
    } else {
        m_outputFd = open(m_outputFile.toLocal8Bit().constData(),
                          O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    }
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, m_inputFd, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, m_outputFd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, m_errorFd >= 0 ? m_errorFd : m_outputFd,
                                     STDERR_FILENO);
    std::vector<QByteArray> arguments;
    for (const QString &argument : command)
        arguments.push_back(argument.toLocal8Bit());
    std::vector<QByteArray> environment = environmentWith(m_environment);
    const int failure = posix_spawnp(&m_pid, arguments.front().constData(), &files, nullptr,
                                     pointersTo(arguments).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&files);
    if (failure == 0)
        return true;
    m_pid = 0;
    m_error = command.first() + ": " + QString::fromLocal8Bit(std::strerror(failure));
    return false;
}

// Asked without reaping, so that the exit code stays for waitForFinished.
bool SpawnedProcess::isRunning() const {
    siginfo_t info{};
    return m_pid > 0 && waitid(P_PID, id_t(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           info.si_pid == 0;
}

bool SpawnedProcess::waitForFinished(int timeoutMs) {
    const QDeadlineTimer deadline(timeoutMs);
    while (m_pid > 0) {
        int status = 0;
        const pid_t ended = waitpid(m_pid, &status, WNOHANG);
        if (ended == m_pid || (ended < 0 && errno != EINTR)) {
            m_exitCode = ended == m_pid && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            m_pid = 0;
            return true;
        }
        if (deadline.hasExpired())
            return false;
        std::this_thread::sleep_for(pollInterval);
    }
    return false;
}

void SpawnedProcess::signal(int number) const {
    if (m_pid > 0)
        ::kill(m_pid, number);
}

int SpawnedProcess::execute(const QString &program, const QStringList &arguments) {
    SpawnedProcess process;
    if (process.start(program, arguments))
        process.waitForFinished(executeTimeoutMs);
    return process.exitCode();
}

QByteArray SpawnedProcess::contents(int fd) {
    struct stat info {};
    if (fd < 0 || fstat(fd, &info) != 0)
        return {};
    QByteArray text(qsizetype(info.st_size), Qt::Uninitialized);
    const ssize_t read = pread(fd, text.data(), size_t(text.size()), 0);
    text.truncate(qsizetype(std::max<ssize_t>(read, 0)));
    return text;
}

void SpawnedProcess::closeFiles() {
    for (int *fd : {&m_inputFd, &m_outputFd, &m_errorFd}) {
        if (*fd >= 0)
            close(*fd);
        *fd = -1;
    }
}
