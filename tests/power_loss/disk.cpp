#include "tests/power_loss/disk.h"

#include <algorithm>
#include <fstream>
#include <set>

namespace power_loss {
namespace {

namespace fs = std::filesystem;
using Kind = Operation::Kind;

enum class Unflushed { kMissing, kThere, kLastOnly };

bool is_about_names(const Operation& operation) {
  return operation.kind == Kind::kName || operation.kind == Kind::kRename ||
         operation.kind == Kind::kUnname;
}

void change(std::string& bytes, const Operation& operation) {
  if (operation.kind == Kind::kTruncate) return bytes.resize(operation.offset);
  bytes.resize(std::max<std::size_t>(bytes.size(), operation.offset + operation.bytes.size()));
  bytes.replace(operation.offset, operation.bytes.size(), operation.bytes);
}

void change(std::map<std::string, int>& names, const Operation& operation) {
  if (operation.kind == Kind::kName) {
    names[operation.name] = operation.file;
  } else if (operation.kind == Kind::kUnname) {
    names.erase(operation.name);
  } else if (const auto old = names.find(operation.name); old != names.end()) {
    const int file = old->second;
    names.erase(old);
    if (!operation.new_name.empty()) names[operation.new_name] = file;
  }
}

/// The contents of one file after the first `count` operations.
std::string contents(const Snapshot& before, const std::vector<Operation>& operations,
                     std::size_t count, int file, Careless careless, Unflushed unflushed) {
  const auto known = before.contents.find(file);
  std::string flushed = known == before.contents.end() ? std::string() : known->second;
  std::vector<const Operation*> pending;
  for (std::size_t i = 0; i < count; ++i) {
    const Operation& operation = operations[i];
    if (operation.file != file) continue;
    if (operation.kind == Kind::kWrite || operation.kind == Kind::kTruncate)
      pending.push_back(&operation);
    if (operation.kind != Kind::kFlush || careless.of_contents) continue;
    for (const Operation* each : pending)
      change(flushed, *each);
    pending.clear();
  }
  if (unflushed == Unflushed::kMissing || pending.empty()) return flushed;
  if (unflushed == Unflushed::kLastOnly) pending.erase(pending.begin(), pending.end() - 1);
  for (const Operation* each : pending)
    change(flushed, *each);
  return flushed;
}

bool is_in(const std::string& name, const std::string& folder) {
  return fs::path(name).parent_path() == folder;
}

/// How many operations have certainly changed the names on the disk.
std::size_t certain_names(const std::vector<Operation>& operations, std::size_t count,
                          Careless careless) {
  std::size_t certain = 0;
  if (careless.of_names) return certain;
  for (std::size_t flush = 0; flush < count; ++flush) {
    if (operations[flush].kind != Kind::kFlushFolder) continue;
    for (std::size_t i = certain; i < flush; ++i) {
      const Operation& operation = operations[i];
      const std::string& name =
          operation.kind == Kind::kRename ? operation.new_name : operation.name;
      if (is_about_names(operation) && is_in(name, operations[flush].name)) certain = i + 1;
    }
  }
  return certain;
}

}  // namespace

void visit_disks(const Snapshot& before, const std::vector<Operation>& operations,
                 std::size_t count, Careless careless,
                 const std::function<void(const Files&)>& visit) {
  std::set<Files> seen;
  std::map<std::string, int> names = before.names;
  const std::size_t certain = certain_names(operations, count, careless);
  for (std::size_t done = 0; done <= count; ++done) {
    if (done > 0 && is_about_names(operations[done - 1])) change(names, operations[done - 1]);
    if (done < certain) continue;
    for (const Unflushed unflushed :
         {Unflushed::kMissing, Unflushed::kThere, Unflushed::kLastOnly}) {
      Files files;
      for (const auto& [name, file] : names)
        files[name] = contents(before, operations, count, file, careless, unflushed);
      if (seen.insert(files).second) visit(files);
    }
  }
}

Files files_after(const Snapshot& before, const std::vector<Operation>& operations) {
  Files files;
  std::map<std::string, int> names = before.names;
  for (const Operation& operation : operations) {
    if (is_about_names(operation)) change(names, operation);
  }
  for (const auto& [name, file] : names)
    files[name] = contents(before, operations, operations.size(), file, {}, Unflushed::kThere);
  return files;
}

void lay_out(const Files& files, const fs::path& folder) {
  for (const auto& [name, bytes] : files) {
    fs::create_directories((folder / name).parent_path());
    std::ofstream(folder / name, std::ios::binary) << bytes;
  }
}

}  // namespace power_loss
