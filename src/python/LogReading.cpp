// read_log(): the messages of a UBX or SBF receiver log, each decoded into a LogMessage,
// a Message that also carries the satellite, signal and time tag the log gave it.
//
// The source is a path (read here, in chunks), bytes in memory (handed to the reader
// whole: it does not copy them) or a binary file object (read() in chunks, which needs
// the interpreter). Memory stays that of one chunk and the reader's own buffer,
// whatever the log's size. The interpreter lock is released while the reader scans and
// the message is decoded: each message is decoded as it is read, in the same stretch
// without the lock, since a log is read to be decoded and its Field objects, the costly
// part in Python, are still made on first use.

#include "python/LogReading.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "python/Records.h"
#include "zeltnavmsg/LogReader.h"

namespace ZeltNavMsg::Python {

namespace {

constexpr std::size_t kDefaultChunk = std::size_t{1} << 16;

struct LogMessageObject : MessageObject {
    std::string hex;
    SignalType signalType = SignalType::GpsL1CA;
    LogProtocol protocol = LogProtocol::Ubx;
    std::uint64_t offset = 0;
};

[[noreturn]] void raiseOsError(int error, const py::object& path) {
    errno = error;
    PyErr_SetFromErrnoWithFilenameObject(PyExc_OSError, path.ptr());
    throw py::error_already_set();
}

py::str typeName(py::handle arg) {
    return py::type::handle_of(arg).attr("__name__");
}

class LogIterator {
  public:
    LogIterator(py::handle source, bool allFields, std::size_t chunkSize)
        : allFields_(allFields), chunkSize_(chunkSize) {
        if (PyUnicode_Check(source.ptr()) ||
            (!PyBytes_Check(source.ptr()) && py::hasattr(source, "__fspath__"))) {
            openPath(source);
        } else if (PyObject_CheckBuffer(source.ptr()) != 0) {
            if (PyObject_GetBuffer(source.ptr(), &view_, PyBUF_SIMPLE) != 0) {
                throw py::error_already_set();
            }
            kind_ = Kind::Buffer;
        } else if (py::hasattr(source, "read")) {
            read_ = source.attr("read");
            kind_ = Kind::File;
        } else {
            throw py::type_error("read_log takes a path, bytes or a binary file object, not " +
                                 std::string(typeName(source)));
        }
    }
    ~LogIterator() { close(); }
    LogIterator(const LogIterator&) = delete;
    LogIterator& operator=(const LogIterator&) = delete;
    LogIterator(LogIterator&&) = delete;
    LogIterator& operator=(LogIterator&&) = delete;

    py::object next() {
        if (done_) {
            throw py::stop_iteration();
        }
        if (busy_) {
            throw py::value_error("read_log: this log is being read by another thread");
        }
        const Busy running{busy_};
        try {
            for (;;) {
                std::unique_ptr<LogMessageObject> object;
                Step step = Step::End;
                {
                    const py::gil_scoped_release unlocked;
                    step = advance();
                    if (step == Step::Message) {
                        object = decoded();
                    }
                }
                stats_ = reader_.stats();
                switch (step) {
                    case Step::Message:
                        return py::cast(std::move(object));
                    case Step::NeedInput:
                        readChunk();
                        break;
                    case Step::Interrupted:
                        if (PyErr_CheckSignals() != 0) {
                            throw py::error_already_set();
                        }
                        break;
                    case Step::ReadError:
                        raiseOsError(readError_, path_);
                    case Step::End:
                        close();
                        throw py::stop_iteration();
                }
            }
        } catch (py::stop_iteration&) {
            throw;
        } catch (...) {
            close();  // an error ends the log, as it ends a generator
            throw;
        }
    }

    // The reader's counts, by the C++ names in snake case.
    [[nodiscard]] py::dict stats() const {
        py::dict d;
        d["bytes"] = stats_.bytes;
        d["skipped_bytes"] = stats_.skippedBytes;
        d["ubx_frames"] = stats_.ubxFrames;
        d["sbf_blocks"] = stats_.sbfBlocks;
        d["ubx_bad_checksums"] = stats_.ubxBadChecksums;
        d["sbf_bad_crcs"] = stats_.sbfBadCrcs;
        d["sbf_bad_lengths"] = stats_.sbfBadLengths;
        d["truncated_frames"] = stats_.truncatedFrames;
        d["nav_records"] = stats_.navRecords;
        d["unmapped_signals"] = stats_.unmappedSignals;
        d["malformed_records"] = stats_.malformedRecords;
        d["failed_checks"] = stats_.failedChecks;
        d["incomplete_frames"] = stats_.incompleteFrames;
        d["messages"] = stats_.messages;
        return d;
    }

  private:
    enum class Kind : std::uint8_t { Path, Buffer, File };
    enum class Step : std::uint8_t { Message, NeedInput, Interrupted, ReadError, End };

    struct Busy {
        bool& flag;
        explicit Busy(bool& f) : flag(f) { flag = true; }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;
        Busy(Busy&&) = delete;
        Busy& operator=(Busy&&) = delete;
        ~Busy() { flag = false; }
    };

    void openPath(py::handle source) {
        path_ = py::reinterpret_steal<py::object>(PyOS_FSPath(source.ptr()));
        if (!path_) {
            throw py::error_already_set();
        }
        py::object encoded = path_;
        if (PyUnicode_Check(path_.ptr())) {
            encoded = py::reinterpret_steal<py::object>(PyUnicode_EncodeFSDefault(path_.ptr()));
            if (!encoded) {
                throw py::error_already_set();
            }
        }
        fd_ = ::open(PyBytes_AS_STRING(encoded.ptr()), O_RDONLY | O_CLOEXEC);
        struct stat status {};
        if (fd_ < 0) {
            raiseOsError(errno, path_);
        }
        if (::fstat(fd_, &status) == 0 && S_ISDIR(status.st_mode)) {
            raiseOsError(EISDIR, path_);
        }
        chunk_ = std::make_unique_for_overwrite<std::uint8_t[]>(chunkSize_);
        kind_ = Kind::Path;
    }

    // Without the interpreter lock: to the next message, reading a path's next chunk as
    // the reader needs it; the other sources' input is fed with the lock held.
    Step advance() {
        for (;;) {
            if (reader_.next(message_)) {
                return Step::Message;
            }
            if (finished_) {
                return Step::End;
            }
            switch (kind_) {
                case Kind::Buffer:
                    if (!fed_) {
                        fed_ = true;
                        reader_.feed(std::span(static_cast<const std::uint8_t*>(view_.buf),
                                               static_cast<std::size_t>(view_.len)));
                        continue;
                    }
                    break;
                case Kind::Path: {
                    const ssize_t got = ::read(fd_, chunk_.get(), chunkSize_);
                    if (got > 0) {
                        reader_.feed(std::span(chunk_.get(), static_cast<std::size_t>(got)));
                        continue;
                    }
                    if (got < 0) {
                        readError_ = errno;
                        return readError_ == EINTR ? Step::Interrupted : Step::ReadError;
                    }
                    break;
                }
                case Kind::File:
                    if (!atEnd_) {
                        return Step::NeedInput;
                    }
                    break;
            }
            reader_.finish();
            finished_ = true;
        }
    }

    // Without the interpreter lock: the current message as a new LogMessage.
    std::unique_ptr<LogMessageObject> decoded() {
        auto o = std::make_unique<LogMessageObject>();
        o->sat = message_.satellite;
        o->line = static_cast<std::int64_t>(reader_.stats().messages);
        o->signal = message_.signalName;
        o->hasTime = message_.hasTime;
        o->week = message_.week;
        o->tow = message_.secondsOfWeek;
        o->options.allFields = allFields_;
        o->hex = message_.hex;
        o->signalType = message_.signal;
        o->protocol = message_.protocol;
        o->offset = message_.streamOffset;
        NavMessageDecoder::DecodeFields(message_.format, message_.subframe, message_.page,
                                        message_.hex, o->message);
        return o;
    }

    // A file object's next chunk, kept alive until the reader has used it up.
    void readChunk() {
        py::object data = read_(chunkSize_);
        if (!PyBytes_Check(data.ptr())) {
            if (PyObject_CheckBuffer(data.ptr()) == 0) {
                throw py::type_error("read_log needs a binary file: its read() gave " +
                                     std::string(typeName(data)) + ", not bytes");
            }
            // A copy the caller cannot change under the reader.
            data = py::reinterpret_steal<py::object>(PyBytes_FromObject(data.ptr()));
            if (!data) {
                throw py::error_already_set();
            }
        }
        const auto size = static_cast<std::size_t>(PyBytes_GET_SIZE(data.ptr()));
        if (size == 0) {
            atEnd_ = true;
            pending_ = py::object();
            return;
        }
        reader_.feed(
            std::span(reinterpret_cast<const std::uint8_t*>(PyBytes_AS_STRING(data.ptr())), size));
        pending_ = std::move(data);
    }

    // Lets go of the source; the counts stay.
    void close() {
        done_ = true;
        if (fd_ >= 0) {
            ::close(fd_);
            fd_ = -1;
        }
        if (view_.obj != nullptr) {
            PyBuffer_Release(&view_);
        }
        pending_ = py::object();
        read_ = py::object();
        chunk_.reset();
    }

    LogReader reader_;
    LogMessage message_;
    LogReaderStats stats_;  // a copy, read with the lock held while another thread reads
    Kind kind_ = Kind::Buffer;
    bool allFields_;
    std::size_t chunkSize_;
    bool fed_ = false;       // a buffer handed to the reader
    bool atEnd_ = false;     // a file object's read() gave no more bytes
    bool finished_ = false;  // reader.finish() called
    bool done_ = false;      // the last message given, or an error
    bool busy_ = false;      // next() running, perhaps without the lock
    int readError_ = 0;
    int fd_ = -1;
    py::object path_;
    std::unique_ptr<std::uint8_t[]> chunk_;
    Py_buffer view_{};
    py::object read_;
    py::object pending_;
};

std::string_view protocolName(LogProtocol protocol) {
    return protocol == LogProtocol::Sbf ? "sbf" : "ubx";
}

py::object timeOf(const LogMessageObject& o) {
    return o.hasTime ? py::object(py::make_tuple(o.week, o.tow)) : py::object(py::none());
}

}  // namespace

void bindLogReading(py::module_& m, const Enumerations& enums) {
    py::class_<LogMessageObject, MessageObject>(
        m, "LogMessage",
        "A message of a receiver log, decoded: a Message with the log's satellite, signal,\n"
        "time tag and bits.")
        .def_property_readonly(
            "signal", [enums](const LogMessageObject& o) { return enums.member(o.signalType); })
        .def_property_readonly("signal_name", [](const LogMessageObject& o) { return o.signal; })
        .def_property_readonly("time", &timeOf)
        .def_property_readonly("hex", [](const LogMessageObject& o) { return o.hex; })
        .def_property_readonly("protocol",
                               [](const LogMessageObject& o) { return protocolName(o.protocol); })
        .def_property_readonly("offset", [](const LogMessageObject& o) { return o.offset; })
        .def("__repr__", [enums](const LogMessageObject& o) {
            return py::str("<LogMessage {} {} {} subframe {} page {}, time {}: {!r}, {}>")
                .format(latin1Text(o.sat), o.signal, enums.member(o.message.format()).attr("name"),
                        o.message.subframe(), o.message.page(), timeOf(o), o.message.layout(),
                        o.message.ok() ? "ok" : "not ok");
        });

    py::class_<LogIterator>(m, "LogReader",
                            "The messages of one receiver log, in order; made by read_log().")
        .def("__iter__", [](py::object self) { return self; })
        .def("__next__", &LogIterator::next)
        .def_property_readonly("stats", &LogIterator::stats);

    m.def(
        "read_log",
        [](py::handle source, py::handle allFields, py::handle chunkSize) {
            const int all = PyObject_IsTrue(allFields.ptr());
            if (all < 0) {
                throw py::error_already_set();
            }
            const std::int32_t chunk = toInt32(chunkSize, "chunk_size");
            if (chunk < 1) {
                throw py::value_error("chunk_size must be 1 or more, not " + std::to_string(chunk));
            }
            return std::make_unique<LogIterator>(source, all != 0, static_cast<std::size_t>(chunk));
        },
        py::arg("source"), py::kw_only(), py::arg("all_fields") = false,
        py::arg("chunk_size") = kDefaultChunk,
        "read_log(source, *, all_fields=False, chunk_size=65536) -> LogReader\n\n"
        "The navigation messages of a u-blox UBX or Septentrio SBF receiver log, each a\n"
        "LogMessage: a Message (decode_fields' record) with the log's signal, time tag and\n"
        "hex. source is a path (str or os.PathLike), bytes-like data, or a binary file\n"
        "object, read chunk_size bytes at a time. The LogReader's stats are the reader's\n"
        "counts so far.");
}

}  // namespace ZeltNavMsg::Python
