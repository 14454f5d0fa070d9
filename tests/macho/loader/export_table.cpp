#include "tests/macho/loader/tables.h"

namespace macho_tests {
namespace {

constexpr std::uint64_t kOrdinary = 0;
constexpr std::uint64_t kWeakDefinition = 4;

/// Walks the table, which is a trie: edges are pieces of names, and a node is the symbol whose name
/// ends there.
class Walk {
 public:
  explicit Walk(const Image& image)
      : stream_(image, Table::kExports), nodes_left_(stream_.size()) {}

  std::map<std::string, std::uint64_t> all() {
    if (!stream_.is_at_end()) visit(0, "");
    return std::move(found_);
  }

 private:
  struct Edge {
    std::string piece;
    std::uint64_t node;
  };

  void visit(std::uint64_t node, const std::string& name) {
    // A damaged trie may contain a cycle.
    if (nodes_left_-- == 0) stream_.refuse("it has no end");
    stream_.go_to(node);
    if (stream_.number() != 0) read_symbol(name);
    std::vector<Edge> edges(stream_.byte());
    for (Edge& edge : edges) {
      edge.piece = stream_.text();
      edge.node = stream_.number();
    }
    for (const Edge& edge : edges)
      visit(edge.node, name + edge.piece);
  }

  void read_symbol(const std::string& name) {
    const std::uint64_t flags = stream_.number();
    if (flags != kOrdinary && flags != kWeakDefinition)
      stream_.refuse(name + " is not an ordinary symbol");
    found_[name] = stream_.number();
  }

  OpcodeStream stream_;
  std::uint64_t nodes_left_;
  std::map<std::string, std::uint64_t> found_;
};

}  // namespace

std::map<std::string, std::uint64_t> exports(const Image& image) {
  return Walk(image).all();
}

}  // namespace macho_tests
