#include "host/media/index.h"

#include <fmt/core.h>

#include <filesystem>

#include "host/basics/user_warning.h"
#include "host/files/aside.h"
#include "host/media/database.h"
#include "host/media/log.h"

namespace host::media {
namespace {

// Raise it with every change to the tables: an index of another version is rebuilt.
constexpr int schema_version = 2;

constexpr char schema[] = R"(
  BEGIN;
  DROP TABLE IF EXISTS songs;
  DROP TABLE IF EXISTS refused;
  CREATE TABLE songs (
    id INTEGER PRIMARY KEY, path BLOB NOT NULL UNIQUE, size INTEGER, modified_ns INTEGER,
    picture_path BLOB, picture_key INTEGER, picture_width INTEGER, picture_height INTEGER,
    picture_opaque INTEGER, title TEXT, artist TEXT, album_artist TEXT, album TEXT,
    genre TEXT, composer TEXT, track_number INTEGER, disc_number INTEGER, duration REAL,
    is_compilation INTEGER, is_cloud INTEGER, own_artwork INTEGER, own_path BLOB,
    own_width INTEGER, own_height INTEGER, own_opaque INTEGER);
  CREATE TABLE refused (path BLOB PRIMARY KEY, size INTEGER, modified_ns INTEGER) WITHOUT ROWID;
)";

constexpr char select_songs[] =
    "SELECT id, path, size, modified_ns, picture_path, picture_key, picture_width, picture_height, "
    "picture_opaque, title, artist, album_artist, album, genre, composer, track_number, "
    "disc_number, duration, is_compilation, is_cloud, own_artwork, own_path, own_width, "
    "own_height, own_opaque FROM songs ORDER BY id";
constexpr char select_files[] =
    "SELECT id, path, size, modified_ns, picture_path, picture_key, picture_width, picture_height, "
    "picture_opaque FROM songs ORDER BY id";
constexpr char insert_song[] =
    "INSERT OR REPLACE INTO songs VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";

std::string text_at(const Statement& row, int column) {
  return std::string{row.bytes(column)};
}

PictureHeader header_at(const Statement& row, int column) {
  return {static_cast<int>(row.integer(column)), static_cast<int>(row.integer(column + 1)),
          row.integer(column + 2) != 0};
}

void bind_header(Statement& statement, int parameter, const PictureHeader& header) {
  statement.bind(parameter, std::int64_t{header.width})
      .bind(parameter + 1, std::int64_t{header.height})
      .bind(parameter + 2, std::int64_t{header.is_opaque});
}

// A text that is there already is overwritten in its place.
template <class File>
void read_file(const Statement& row, File& file) {
  file.id = static_cast<std::uint64_t>(row.integer(0));
  file.path = row.bytes(1);
  file.stamp = {row.integer(2), row.integer(3)};
  file.folder_picture.path = row.bytes(4);
  file.folder_picture.key = static_cast<std::uint64_t>(row.integer(5));
  file.folder_picture.header = header_at(row, 6);
}

void read_record(const Statement& row, SongRecord& record) {
  read_file(row, record);
  SongTags& tags = record.tags;
  tags.title = row.bytes(9);
  tags.artist = row.bytes(10);
  tags.album_artist = row.bytes(11);
  tags.album = row.bytes(12);
  tags.genre = row.bytes(13);
  tags.composer = row.bytes(14);
  tags.track_number = static_cast<int>(row.integer(15));
  tags.disc_number = static_cast<int>(row.integer(16));
  tags.duration_seconds = row.real(17);
  tags.is_compilation = row.integer(18) != 0;
  tags.is_cloud = row.integer(19) != 0;
  tags.own_artwork = static_cast<std::uint64_t>(row.integer(20));
  tags.own_picture_path = row.bytes(21);
  tags.own_picture = header_at(row, 22);
}

void bind_record(Statement& statement, const SongRecord& record) {
  const SongTags& tags = record.tags;
  statement.bind(1, static_cast<std::int64_t>(record.id))
      .bind_bytes(2, record.path)
      .bind(3, record.stamp.size)
      .bind(4, record.stamp.modified_ns)
      .bind_bytes(5, record.folder_picture.path)
      .bind(6, static_cast<std::int64_t>(record.folder_picture.key))
      .bind(10, tags.title)
      .bind(11, tags.artist)
      .bind(12, tags.album_artist)
      .bind(13, tags.album)
      .bind(14, tags.genre)
      .bind(15, tags.composer)
      .bind(16, std::int64_t{tags.track_number})
      .bind(17, std::int64_t{tags.disc_number})
      .bind(18, tags.duration_seconds)
      .bind(19, std::int64_t{tags.is_compilation})
      .bind(20, std::int64_t{tags.is_cloud})
      .bind(21, static_cast<std::int64_t>(tags.own_artwork))
      .bind_bytes(22, tags.own_picture_path);
  bind_header(statement, 7, record.folder_picture.header);
  bind_header(statement, 23, tags.own_picture);
}

}  // namespace

Index::Index(std::string path, std::int64_t most_pages)
    : path_(std::move(path)), most_pages_(most_pages) {
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path{path_}.parent_path(), ignored);
  recover(open(path_));
}

Index::~Index() = default;

DatabaseStatus Index::open(const std::string& path) {
  database_ = std::make_unique<Database>(path);
  return database_->status() == DatabaseStatus::ok ? prepare_schema() : database_->status();
}

DatabaseStatus Index::prepare_schema() {
  database_->execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL");
  if (most_pages_ > 0) {
    database_->execute(fmt::format("PRAGMA max_page_count={}", most_pages_).c_str());
  }
  {
    Statement version = database_->prepare("PRAGMA user_version");
    if (const auto status = version.step(); status != DatabaseStatus::row) return status;
    if (version.integer(0) == schema_version) return DatabaseStatus::ok;
  }
  const std::string commit = fmt::format("PRAGMA user_version={}; COMMIT", schema_version);
  const DatabaseStatus status = database_->execute(schema);
  if (status == DatabaseStatus::ok) return database_->execute(commit.c_str());
  // No rollback here: it would overwrite the error that is still to be reported, and closing the
  // failed database undoes the transaction anyway.
  return status;
}

// Only a damaged file is set aside; one that is locked or on a full disk is left as it is, and this
// run does without it.
void Index::recover(DatabaseStatus status) {
  if (status == DatabaseStatus::ok) return;
  if (status == DatabaseStatus::damaged) return set_aside();
  work_in_memory(database_->message());
}

void Index::set_aside() {
  database_.reset();
  const auto [damaged, failure] = files::set_aside(path_, "damaged");
  std::error_code error = failure;
  // The latest changes are in a file beside it, which must not be applied to the new index.
  if (!error) std::filesystem::rename(path_ + "-wal", damaged + "-wal", error);
  if (error == std::errc::no_such_file_or_directory) error.clear();
  std::error_code ignored;
  std::filesystem::remove(path_ + "-shm", ignored);
  if (!error && open(path_) == DatabaseStatus::ok) {
    log_warning(fmt::format("the music index was damaged; it is kept as {} and rebuilt", damaged));
    return;
  }
  work_in_memory(error ? error.message() : database_->message());
}

void Index::work_in_memory(const std::string& reason) {
  warn_user(
      fmt::format("the music index {} cannot be kept ({}); the music will be read again at the "
                  "next start",
                  path_, reason),
      kDiskWarning);
  store_ = IndexStore::in_memory;
  open({});
}

IndexContents Index::load() {
  IndexContents contents;
  DatabaseStatus status =
      read_songs([&contents](const SongRecord& song) { contents.songs.push_back(song); });
  if (status == DatabaseStatus::ok) status = read_refused(contents.refused);
  if (status == DatabaseStatus::ok) return contents;
  recover(status);
  return {};
}

KnownFiles Index::load_files() {
  KnownFiles files;
  DatabaseStatus status = read_files(files.songs);
  if (status == DatabaseStatus::ok) status = read_refused(files.refused);
  if (status == DatabaseStatus::ok) return files;
  recover(status);
  return {};
}

bool Index::show_songs(const std::function<void(const SongRecord&)>& show) {
  const DatabaseStatus status = read_songs(show);
  recover(status);
  return status == DatabaseStatus::ok;
}

std::size_t Index::count_songs() {
  Statement count = database_->prepare("SELECT count(*) FROM songs");
  const DatabaseStatus status = count.step();
  if (status == DatabaseStatus::row) return static_cast<std::size_t>(count.integer(0));
  recover(status);
  return 0;
}

DatabaseStatus Index::read_songs(const std::function<void(const SongRecord&)>& show) {
  Statement rows = database_->prepare(select_songs);
  SongRecord record;
  DatabaseStatus status = rows.step();
  for (; status == DatabaseStatus::row; status = rows.step()) {
    read_record(rows, record);
    show(record);
  }
  return status;
}

DatabaseStatus Index::read_files(std::vector<KnownFile>& files) {
  Statement rows = database_->prepare(select_files);
  DatabaseStatus status = rows.step();
  for (; status == DatabaseStatus::row; status = rows.step())
    read_file(rows, files.emplace_back());
  return status;
}

DatabaseStatus Index::read_refused(std::vector<RefusedFile>& refused) {
  Statement rows = database_->prepare("SELECT path, size, modified_ns FROM refused");
  DatabaseStatus status = rows.step();
  for (; status == DatabaseStatus::row; status = rows.step())
    refused.push_back({text_at(rows, 0), {rows.integer(1), rows.integer(2)}});
  return status;
}

bool Index::apply(const IndexChanges& changes) {
  if (changes.count() == 0) return true;
  const bool is_kept = database_->execute("BEGIN IMMEDIATE") == DatabaseStatus::ok &&
                       write(changes) && database_->execute("COMMIT") == DatabaseStatus::ok;
  if (is_kept) return true;
  if (!has_complained_) {
    warn_user(
        fmt::format("the music index cannot be written ({}); the songs are available now, and "
                    "will be read again at the next start",
                    database_->message()),
        kDiskWarning);
    has_complained_ = true;
  }
  database_->execute("ROLLBACK");
  return false;
}

bool Index::write(const IndexChanges& changes) {
  auto is_done = [](DatabaseStatus status) { return status == DatabaseStatus::ok; };
  Statement forget_song = database_->prepare("DELETE FROM songs WHERE path = ?");
  Statement forget_refused = database_->prepare("DELETE FROM refused WHERE path = ?");
  for (const std::string& path : changes.forgotten) {
    if (!is_done(forget_song.bind_bytes(1, path).run())) return false;
    if (!is_done(forget_refused.bind_bytes(1, path).run())) return false;
  }
  Statement insert = database_->prepare(insert_song);
  for (const SongRecord& record : changes.songs) {
    bind_record(insert, record);
    if (!is_done(insert.run())) return false;
  }
  Statement refuse = database_->prepare("INSERT OR REPLACE INTO refused VALUES (?,?,?)");
  for (const RefusedFile& file : changes.refused) {
    refuse.bind_bytes(1, file.path).bind(2, file.stamp.size).bind(3, file.stamp.modified_ns);
    if (!is_done(refuse.run())) return false;
  }
  return true;
}

}  // namespace host::media
