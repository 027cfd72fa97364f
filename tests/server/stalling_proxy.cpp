#include "tests/server/stalling_proxy.h"

#include <QFile>

#include <array>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace verdane::testing {

namespace {

constexpr int pause_ms = 10;

sockaddr_un address_of(const QString& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path - 1);
    return address;
}

int new_socket()
{
    const int made = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (made < 0)
        qFatal("no socket");
    return made;
}

bool is_ready(int socket)
{
    pollfd ready{socket, POLLIN, 0};
    return ::poll(&ready, 1, 0) > 0;
}

}  // namespace

stalling_proxy::stalling_proxy(const QString& path, const QString& server, int messages)
    : server_(server), most_(messages), listening_(new_socket())
{
    const sockaddr_un address = address_of(path);
    if (::bind(listening_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listening_, 8) != 0)
        qFatal("cannot listen on %s", qUtf8Printable(path));
    thread_.reset(QThread::create([this] { run(); }));
    thread_->start();
}

stalling_proxy::~stalling_proxy()
{
    stop();
}

void stalling_proxy::stop()
{
    if (ended_.exchange(true))
        return;
    thread_->wait();
    ::close(listening_);
    for (const connection& each : connections_) {
        ::close(each.client);
        ::close(each.server);
    }
}

void stalling_proxy::cut_after(int messages)
{
    cut_at_ = passed_ + messages;
}

std::vector<int> stalling_proxy::messages_of_connections()
{
    stop();
    std::vector<int> messages;
    for (const connection& each : connections_)
        messages.push_back(each.messages);
    return messages;
}

void stalling_proxy::run()
{
    while (!ended_) {
        if (!is_stalled() && is_ready(listening_))
            accept_connection();
        bool any_passed = false;
        for (connection& each : connections_)
            any_passed = serve(each) || any_passed;
        if (!any_passed)
            wait_for_messages();
    }
}

void stalling_proxy::wait_for_messages() const
{
    std::vector<pollfd> sockets{{listening_, POLLIN, 0}};
    for (const connection& each : connections_) {
        if (!each.ended) {
            sockets.push_back({each.client, POLLIN, 0});
            sockets.push_back({each.server, POLLIN, 0});
        }
    }
    if (is_stalled())
        QThread::msleep(pause_ms);
    else
        ::poll(sockets.data(), sockets.size(), pause_ms);
}

bool stalling_proxy::serve(connection& each)
{
    if (each.ended || is_stalled())
        return false;
    const bool from_server = is_ready(each.server);
    if (from_server)
        pass_on(each, each.server, each.client);
    const bool from_client = is_ready(each.client);
    if (from_client && pass_on(each, each.client, each.server)) {
        ++each.messages;
        count_message();
    }
    return from_server || from_client;
}

void stalling_proxy::count_message()
{
    if (++passed_ != cut_at_)
        return;
    for (connection& each : connections_) {
        each.ended = true;
        ::shutdown(each.client, SHUT_RDWR);
        ::shutdown(each.server, SHUT_RDWR);
    }
}

void stalling_proxy::accept_connection()
{
    const int client = ::accept(listening_, nullptr, nullptr);
    const int server = new_socket();
    const sockaddr_un address = address_of(server_);
    if (::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        qFatal("no server on %s", qUtf8Printable(server_));
    connections_.push_back({client, server});
}

bool stalling_proxy::pass_on(connection& each, int from, int to)
{
    std::array<char, 65536> part{};
    const ssize_t length = ::read(from, part.data(), part.size());
    if (length > 0 && ::write(to, part.data(), static_cast<std::size_t>(length)) == length)
        return true;
    each.ended = true;
    ::shutdown(to, SHUT_RDWR);
    return false;
}

}  // namespace verdane::testing
