#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/media/song_record.h"

namespace host::media {

class Database;
enum class DatabaseStatus;

// What decides whether a file must be read again, without its tags.
struct KnownFile {
  std::uint64_t id = 0;
  std::string path;
  FileStamp stamp;
  FolderPicture folder_picture;
};

struct KnownFiles {
  std::vector<KnownFile> songs;  // In the order of `IndexContents::songs`.
  std::vector<RefusedFile> refused;
};

struct IndexContents {
  std::vector<SongRecord> songs;  // By identifier.
  std::vector<RefusedFile> refused;
};

// The changes of one transaction. Forgotten paths are removed first, so a moved song keeps its
// identifier.
struct IndexChanges {
  std::vector<std::string> forgotten;
  std::vector<SongRecord> songs;
  std::vector<RefusedFile> refused;

  std::size_t count() const { return forgotten.size() + songs.size() + refused.size(); }
};

enum class IndexStore { on_disk, in_memory };

// Remembers the user's files from one start to the next. It can be rebuilt from the files at any
// time: a damaged index is set aside, and an index that cannot be stored works in memory. Either
// is one line in the log. Used by one thread at a time.
class Index {
 public:
  // `most_pages` limits the file's size, in SQLite pages of 4 KiB; 0 means no limit.
  explicit Index(std::string path, std::int64_t most_pages = 0);
  ~Index();

  // Loads everything, with one query per table.
  IndexContents load();
  // Shows every song, by identifier, in a record that is used again for the next. Returns false
  // when the index turned out to be damaged: then it knew no songs, whatever was shown.
  bool show_songs(const std::function<void(const SongRecord&)>& show);
  std::size_t count_songs();
  // Loads the same songs without their tags, in a fraction of the time.
  KnownFiles load_files();

  // Applies all changes or none. Returns false when they could not be stored, most likely because
  // the disk is full; this is logged once.
  bool apply(const IndexChanges& changes);

  IndexStore store() const { return store_; }

 private:
  DatabaseStatus open(const std::string& path);
  DatabaseStatus prepare_schema();
  DatabaseStatus read_songs(const std::function<void(const SongRecord&)>& show);
  DatabaseStatus read_files(std::vector<KnownFile>& files);
  DatabaseStatus read_refused(std::vector<RefusedFile>& refused);
  void recover(DatabaseStatus status);
  bool write(const IndexChanges& changes);
  void set_aside();
  void work_in_memory(const std::string& reason);

  std::string path_;
  std::int64_t most_pages_;
  std::unique_ptr<Database> database_;
  IndexStore store_ = IndexStore::on_disk;
  bool has_complained_ = false;
};

}  // namespace host::media
