#include "driver/etat.h"

namespace quilvane {

constinit const char* name_recu = nullptr;
constinit const char* name_emis = nullptr;
constinit const char* name_log = nullptr;
constinit const char* name_tmp_recu = nullptr;
constinit const char* name_tmp_emis = nullptr;
constinit const char* name_erre = nullptr;

constinit std::FILE* fp_log = nullptr;
constinit std::FILE* fp_recu = nullptr;
constinit std::FILE* fp_emis = nullptr;
constinit std::FILE* fp_erre = nullptr;

constinit int visu = 0;

void initialiserEtat() {
    name_recu = name_emis = name_log = nullptr;
    name_tmp_recu = name_tmp_emis = name_erre = nullptr;
    fp_log = fp_recu = fp_emis = fp_erre = nullptr;
    visu = 0;
}

}  // namespace quilvane
