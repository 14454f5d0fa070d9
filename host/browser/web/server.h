#pragma once

#include <functional>
#include <list>
#include <span>
#include <string>

#include "host/basics/descriptor.h"
#include "host/browser/web/answer.h"
#include "host/browser/web/complaint.h"
#include "host/runtime/run_loop.h"

namespace host::browser {

/// Serves the pages' files at a listening socket and accepts WebSockets. No client can block the
/// loop, and none has more than a few seconds for its request.
class Server {
 public:
  /// Connections beyond these are closed at once.
  static constexpr std::size_t kMostConnections = 32;
  /// The time in seconds for a request, and for taking the answer.
  static constexpr double kPatience = 10;

  /// A connection that has become a WebSocket, and what arrived behind its handshake.
  using Upgraded = std::function<void(Descriptor connection, std::string early)>;

  /// Does not own the listener, which does not block. The files outlive the server.
  Server(RunLoop& loop, int listener, std::span<const PageFile> files, Upgraded upgraded);
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

 private:
  struct Connection {
    Descriptor descriptor;
    RequestReader reader;
    std::string answer;
    bool is_upgraded = false;
    RunLoop::Id watch = 0;
    RunLoop::Id timer = 0;
  };
  using Place = std::list<Connection>::iterator;

  void accept_some();
  void serve(Place place);
  bool read(Connection& connection);
  void write(Place place);
  void finish(Place place);
  void drop(Place place);

  RunLoop& loop_;
  const int listener_;
  const std::span<const PageFile> files_;
  const Upgraded upgraded_;
  RunLoop::Id watch_;
  std::list<Connection> connections_;
  Complaint crowd_{loop_};
  Complaint foreign_{loop_};
};

}  // namespace host::browser
