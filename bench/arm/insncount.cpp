// A plugin for qemu-arm 7.2 that counts the instructions of every frame, by library:
//
//   qemu-arm -d plugin -plugin insncount.so,begin=SYMBOL,end=SYMBOL ... PROGRAM
//
// A frame lasts from the entry of the function `begin` until the function `end`, which calls it,
// goes on. Both are linker names of the program itself; qemu reads them only with -d plugin. At the
// end it writes to standard error "frames N", "most N" (the dearest frame) and for each library
// "count LIBRARY N" (all frames together).
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <vector>

// What is used of qemu's plugin interface, version 1; Debian ships no header for it.
extern "C" {
using qemu_plugin_id_t = uint64_t;
struct qemu_info_t;
struct qemu_plugin_tb;
struct qemu_plugin_insn;
enum qemu_plugin_op { QEMU_PLUGIN_INLINE_ADD_U64 };
enum qemu_plugin_cb_flags { QEMU_PLUGIN_CB_NO_REGS };

void qemu_plugin_register_vcpu_tb_trans_cb(qemu_plugin_id_t id,
                                           void (*callback)(qemu_plugin_id_t, qemu_plugin_tb*));
void qemu_plugin_register_vcpu_tb_exec_cb(qemu_plugin_tb* block,
                                          void (*callback)(unsigned cpu, void* data),
                                          qemu_plugin_cb_flags flags, void* data);
void qemu_plugin_register_vcpu_tb_exec_inline(qemu_plugin_tb* block, qemu_plugin_op operation,
                                              void* counter, uint64_t value);
void qemu_plugin_register_atexit_cb(qemu_plugin_id_t id, void (*callback)(qemu_plugin_id_t, void*),
                                    void* data);
size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb* block);
qemu_plugin_insn* qemu_plugin_tb_get_insn(const qemu_plugin_tb* block, size_t index);
const char* qemu_plugin_insn_symbol(const qemu_plugin_insn* instruction);
void* qemu_plugin_insn_haddr(const qemu_plugin_insn* instruction);

__attribute__((visibility("default"))) extern int qemu_plugin_version;
__attribute__((visibility("default"))) int
qemu_plugin_install(qemu_plugin_id_t id, const qemu_info_t* info, int argc, char** argv);
}

int qemu_plugin_version = 1;

namespace {

struct Library
{
    uint64_t executed = 0; // since the program began; translated code adds to it
    uint64_t before = 0;   // the same when the frame began
    uint64_t inFrames = 0;
};

std::map<std::string, Library> libraries; // whose addresses translated code keeps
std::string beginName, endName;
bool inFrame = false;
uint64_t frames = 0, most = 0;

struct Mapping
{
    uintptr_t first, end;
    Library* library;
};

std::vector<Mapping> mappings; // those seen: reading the whole list for every block takes seconds

Library* LibraryAt(uintptr_t address)
{
    for (const Mapping& mapping : mappings)
        if (address >= mapping.first && address < mapping.end)
            return mapping.library;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        uintptr_t first = 0, end = 0;
        const size_t slash = line.rfind('/');
        if (slash == std::string::npos ||
            std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR, &first, &end) != 2 ||
            address < first || address >= end)
            continue;
        mappings.push_back({first, end, &libraries[line.substr(slash + 1)]});
        return mappings.back().library;
    }
    return &libraries["other"];
}

void Begin(unsigned /*cpu*/, void* /*data*/)
{
    if (inFrame)
        return;
    inFrame = true;
    for (auto& [name, library] : libraries)
        library.before = library.executed;
}

void End(unsigned /*cpu*/, void* /*data*/)
{
    if (!inFrame)
        return;
    inFrame = false;
    uint64_t all = 0;
    for (auto& [name, library] : libraries) {
        const uint64_t count = library.executed - library.before;
        library.inFrames += count;
        all += count;
    }
    ++frames;
    most = all > most ? all : most;
}

void Translated(qemu_plugin_id_t /*id*/, qemu_plugin_tb* block)
{
    const qemu_plugin_insn* first = qemu_plugin_tb_get_insn(block, 0);
    const char* symbol = qemu_plugin_insn_symbol(first);
    if (symbol && symbol == beginName)
        qemu_plugin_register_vcpu_tb_exec_cb(block, Begin, QEMU_PLUGIN_CB_NO_REGS, nullptr);
    if (symbol && symbol == endName)
        qemu_plugin_register_vcpu_tb_exec_cb(block, End, QEMU_PLUGIN_CB_NO_REGS, nullptr);
    Library* library = LibraryAt(reinterpret_cast<uintptr_t>(qemu_plugin_insn_haddr(first)));
    qemu_plugin_register_vcpu_tb_exec_inline(block, QEMU_PLUGIN_INLINE_ADD_U64, &library->executed,
                                             qemu_plugin_tb_n_insns(block));
}

void Report(qemu_plugin_id_t /*id*/, void* /*data*/)
{
    std::fprintf(stderr, "frames %" PRIu64 "\nmost %" PRIu64 "\n", frames, most);
    for (const auto& [name, library] : libraries)
        if (library.inFrames > 0)
            std::fprintf(stderr, "count %s %" PRIu64 "\n", name.c_str(), library.inFrames);
}

} // namespace

int qemu_plugin_install(qemu_plugin_id_t id, const qemu_info_t* /*info*/, int argc, char** argv)
{
    for (int i = 0; i < argc; ++i) {
        if (std::strncmp(argv[i], "begin=", 6) == 0) {
            beginName = argv[i] + 6;
        } else if (std::strncmp(argv[i], "end=", 4) == 0) {
            endName = argv[i] + 4;
        } else {
            std::fprintf(stderr, "insncount: unknown argument %s\n", argv[i]);
            return 1;
        }
    }
    qemu_plugin_register_vcpu_tb_trans_cb(id, Translated);
    qemu_plugin_register_atexit_cb(id, Report, nullptr);
    return 0;
}
