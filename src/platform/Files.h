// Files and folders, as the program sees them.
//
// Paths are absolute, in the system code page, with "\" between folders; letter case is ignored to
// find a file and kept to make one. A path longer than 259 bytes, with a character that no name can
// hold, or with the name of a device such as "nul.txt" fails with PathFileAccess and the cause
// NameNotUsable.
//
// Every failure is a RuntimeError that carries the path, what was being done and the system's own
// code. Beside those that a function names, any may fail with DiskNotReady, DeviceError or
// OutOfMemory. Hidden and system files are treated like any other; a read-only file can be read and
// copied, but not written, renamed over or deleted until SetAttributes has freed it.
//
// **What a save promises.** A file that is written whole (WriteWholeFile, FileWriter, CopyFile) is
// written beside its place under a name of our own, flushed, and put in place in one step. Whatever
// fails, and wherever the program is ended, the old contents or the new ones are there, whole. A
// file beside it that an ended program left is removed by the next save into the same folder;
// nothing that is not ours ever is (see SideFile.h).
//
// Where that cannot be done - the folder takes no new file, or another program has the file open
// and shares writing but not replacing, as the running game does - the file is rewritten in place.
// Its old contents then lie whole in the system's temporary folder until the new ones are flushed.
// If the rewriting fails, they are put back; if that fails too, the failure names that copy. If the
// program is ended half way, the next of the services below that reads or writes the file puts the
// old contents back first and makes a note for the user (see InterruptedSave.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileTypes.h"

namespace Platform {

// --- What is there ---

// True if the path's attributes can be read, false on any failure. A folder exists too.
bool FileExists(const std::string& path);

// The stamp of a file; nothing if there is no such file, or it cannot be asked.
std::optional<FileStamp> StampOf(const std::string& path);

// The attributes of a file or folder. Fails with FileNotFound, PathNotFound, PermissionDenied.
FileAttributes AttributesOf(const std::string& path);

// Gives a file or folder exactly these attributes; {} makes a read-only or hidden file an ordinary
// one. A refusal is tried again for up to a second. Fails as AttributesOf does.
void SetAttributes(const std::string& path, FileAttributes attributes);

// How many bytes of new files the user may still put into a folder. Fails with PathNotFound,
// PermissionDenied.
uint64_t FreeSpaceIn(const std::string& folder);

// What is in a folder, hidden entries too, without "." and "..", in the order in which the system
// gives it. Nothing if there is no such folder. Fails with PermissionDenied, PathFileAccess (a
// file).
std::vector<FolderEntry> ListFolder(const std::string& path);

// --- Reading ---

// The whole contents of a file, byte for byte. Nothing if there is no such file or folder.
// Others may go on writing to the file meanwhile.
// Fails with PermissionDenied (another has it for itself, no right), PathFileAccess (a folder).
std::optional<std::string> ReadWholeFile(const std::string& path);

// A file that is read from its start on, or from any place. While it is open it cannot be deleted
// or replaced; others may write to it, and what they add is read too. A save by the pack itself
// rewrites it in place.
class FileReader {
 public:
  // Fails with FileNotFound, PathNotFound, PermissionDenied (another has it for itself, no right),
  // PathFileAccess (a folder).
  explicit FileReader(const std::string& path);
  ~FileReader();
  FileReader(FileReader&&) noexcept;

  // Reads the next bytes, up to the given number of them. Returns how many; 0 at the end only.
  // Fails with PermissionDenied (another has locked a part), DeviceError.
  size_t Read(char* buffer, size_t size);

  // How many bytes the file holds now. Fails with DeviceError.
  uint64_t Size();
  // What is read next stands at that place; there is nothing to be read beyond the end. Fails with
  // DeviceError.
  void Seek(uint64_t place);

 private:
  struct Open;
  std::unique_ptr<Open> open_;
};

// --- Writing ---

// Replaces the whole contents of a file, making the file if there is none, as a save promises.
//   bytes  written as given. May be empty.
// The file's attributes are kept; a new file has none. A file that another program holds is tried
// again for up to a second.
// Fails with PathNotFound, PermissionDenied, PathFileAccess (read-only, a folder), DiskFull.
void WriteWholeFile(const std::string& path, std::string_view bytes);

// A file that is written from start to end in pieces, too large to be built in memory. It takes its
// name only when it is whole; until then what stood under that name stays as it was.
class FileWriter {
 public:
  // Starts a file that will stand at the path. Fails as WriteWholeFile does; with IfThere::Fail,
  // with FileAlreadyExists too.
  explicit FileWriter(const std::string& path, IfThere ifThere = IfThere::Replace);
  // A file that was not finished leaves nothing behind.
  ~FileWriter();

  // Adds bytes. Fails with DiskFull.
  void Write(std::string_view bytes);

  // Writes over bytes that have been written before; all of the place must have been. What is
  // written next still goes to the end. Fails with DiskFull.
  void WriteOver(uint64_t place, std::string_view bytes);

  // Reads what has been written from a place on, up to that many bytes, to compare it before it is
  // finished. Returns how many; 0 at the end only. What is written next still goes to the end.
  size_t ReadBack(uint64_t place, char* buffer, size_t size);

  // The time at which the finished file was last written, as StampOf tells it, instead of now.
  void SetLastWrite(uint64_t time);

  // Flushes the file and puts it in place, with the attributes of the file that it replaces. Fails
  // as the constructor does; nothing may be written afterwards.
  void Finish();

 private:
  struct Open;
  std::unique_ptr<Open> open_;
};

// Adds bytes to the end of a file in one go, making the file if there is none. Does not wait for a
// file that another program holds. Fails as WriteWholeFile does; the file is then as long as
// before.
void AppendToFile(const std::string& path, std::string_view bytes);

// Makes a copy with the bytes and the last-write time of a file, as a save promises: a copy that
// fails half way leaves nothing. The attributes are those of a file that is written: a copy of a
// read-only file can be written.
// Fails with FileNotFound, PathNotFound, PermissionDenied, PathFileAccess (a folder, a read-only
// file to be replaced), DiskFull; FileAlreadyExists unless an existing file may be replaced.
void CopyFileTo(const std::string& from, const std::string& to, IfThere ifThere = IfThere::Fail);

// --- Names ---

// Gives a file or folder another name in the same volume, its letter case alone too. A name that is
// taken is never replaced. What another program holds is tried again for up to a second.
// Fails with FileNotFound, PathNotFound, FileAlreadyExists, PermissionDenied (in use, no right).
void RenameFile(const std::string& from, const std::string& to);

// Deletes a file. False if there was none. What another program holds is not waited for. Fails with
// PermissionDenied (in use), PathFileAccess (read-only, a folder).
bool RemoveFile(const std::string& path);

// The same for the file of a program that is about to end, and is held by the system until then: it
// is tried again for up to a second.
bool RemoveFileOfEndingProgram(const std::string& path);

// Makes a folder in one that is there. False if it is there already. Fails with PathNotFound,
// PermissionDenied, PathFileAccess (a file of that name).
bool MakeFolder(const std::string& path);

// Deletes a folder that is empty. False if there was none. Fails with PermissionDenied (in use),
// PathFileAccess (not empty, a file, marked read-only).
bool RemoveFolder(const std::string& path);

}  // namespace Platform
