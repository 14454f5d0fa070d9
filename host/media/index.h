#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/media/song_record.h"

namespace host::media {

class Database;
enum class DatabaseStatus;

// What tells whether a file has to be read again, and nothing of what was read.
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

// What one transaction changes. Forgotten paths go first, so that a moved song keeps its
// identifier.
struct IndexChanges {
  std::vector<std::string> forgotten;
  std::vector<SongRecord> songs;
  std::vector<RefusedFile> refused;

  std::size_t count() const { return forgotten.size() + songs.size() + refused.size(); }
};

enum class IndexStore { on_disk, in_memory };

// What is known of the user's files from one start to the next. It can be made again from the files
// at any time, so a damaged index is set aside and an index that cannot be kept works in memory;
// either is one line in the log. Used by one thread at a time.
class Index {
 public:
  // `most_pages` bounds the file, in SQLite's pages of 4 KiB; 0 leaves it to the disk.
  explicit Index(std::string path, std::int64_t most_pages = 0);
  ~Index();

  // Everything, with one query a table.
  IndexContents load();
  // The same songs without their tags, at a fraction of the time.
  KnownFiles load_files();

  // All or nothing. False when the changes could not be kept, most likely because the disk is full;
  // said once in the log.
  bool apply(const IndexChanges& changes);

  IndexStore store() const { return store_; }

 private:
  DatabaseStatus open(const std::string& path);
  DatabaseStatus prepare_schema();
  DatabaseStatus read_songs(std::vector<SongRecord>& songs);
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
