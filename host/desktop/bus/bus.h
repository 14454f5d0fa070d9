#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "host/desktop/bus/bus_slot.h"
#include "host/runtime/run_loop.h"

namespace host::desktop {

/// Something that lives on a bus. It begins again with every connection.
class BusClient {
 public:
  virtual ~BusClient() = default;
  /// A connection begins: the time to add objects and to ask for names and signals.
  virtual void bus_did_open() = 0;
  /// It has ended: slots of it must be released.
  virtual void bus_did_close() = 0;
};

/// The answer to a call.
class Answer {
 public:
  explicit Answer(sd_bus_message* message) : message_(message) {}

  bool is_error() const { return sd_bus_message_is_method_error(message_, nullptr) > 0; }
  /// The error's name and text, on one line.
  std::string problem() const;
  sd_bus_message* message() const { return message_; }

 private:
  sd_bus_message* message_;
};

/// A connection to one of the desktop's message buses, on the run loop: nothing waits for the bus,
/// and without traffic it wakes nothing.
///
/// A session's bus that ends is looked for after 1, 2, 4, 8, 16 and 32 seconds, then once a minute.
/// One that has never been there is not: a phone without a desktop has nothing to wait for.
class Bus {
 public:
  enum class Kind {
    kSession,
    kSystem,  // For one question at a time: not looked for again.
  };
  struct Method {
    const char* service;
    const char* path;
    const char* interface;
    const char* name;
  };
  using Fill = std::function<void(sd_bus_message*)>;
  using OnMessage = std::function<void(sd_bus_message*)>;
  using OnAnswer = std::function<void(const Answer&)>;

  Bus(RunLoop& loop, Kind kind) : loop_(loop), kind_(kind) {}
  ~Bus() { close(); }
  Bus(const Bus&) = delete;
  Bus& operator=(const Bus&) = delete;

  /// Returns false when there is no such bus.
  bool open();
  bool is_open() const { return connection_ != nullptr; }
  /// Ends the connection for good; its clients are told.
  void close();

  /// Tells the client at once if there is a connection. A client outlives the bus or is removed.
  void add_client(BusClient& client);
  void remove_client(BusClient& client) { std::erase(clients_, &client); }

  // All of these need a connection; without one they do nothing.

  /// `on_answer` is also called when no answer can come any more, unless the slot is released.
  [[nodiscard]] SlotRef call(const Method& method, const Fill& fill, OnAnswer on_answer);
  /// The same without interest in the answer.
  void send(const Method& method, const Fill& fill);
  [[nodiscard]] SlotRef request_name(const std::string& name, OnAnswer on_answer);
  void release_name(const std::string& name);
  /// Receives the signals of this interface that the service sends.
  [[nodiscard]] SlotRef on_signal(const char* service, const char* interface, const char* name,
                                  OnMessage on_message);
  /// Called when the service appears, ends or is replaced.
  [[nodiscard]] SlotRef on_owner_change(const char* service, OnMessage on_message);

  [[nodiscard]] SlotRef add_object(const char* path, const char* interface,
                                   const sd_bus_vtable* table, void* object);
  void emit(const char* path, const char* interface, const char* signal, const Fill& fill);
  void emit_changed(const char* path, const char* interface, std::span<const char* const> names);

 private:
  const char* name() const { return kind_ == Kind::kSession ? "session" : "system"; }
  int connect();
  void begin();
  void process();
  void arm();
  void release_connection();
  void lose();
  void try_again();
  MessageRef message_for(const Method& method, const Fill& fill);
  template <class Start>
  SlotRef deliver_to(OnMessage work, const Start& start);
  static int deliver(sd_bus_message* message, void* work, sd_bus_error*);

  RunLoop& loop_;
  Kind kind_;
  BusRef connection_;
  std::vector<BusClient*> clients_;
  RunLoop::Id watch_ = 0;
  RunLoop::Id timer_ = 0;
  RunLoop::Id retry_ = 0;
  double pause_ = 0;  // until the next try, in seconds; 0 while a connection works
};

}  // namespace host::desktop
