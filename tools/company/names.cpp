#include "tools/company/names.h"

using namespace Qt::StringLiterals;

namespace company {

std::span<const QString> maleNames() {
    static const QString names[] = {
        u"Adi"_s,    u"Agung"_s,  u"Bayu"_s,  u"Budi"_s,   u"Cahyo"_s,  u"Dedi"_s,   u"Dimas"_s,  u"Eko"_s,
        u"Fajar"_s,  u"Galih"_s,  u"Hadi"_s,  u"Hendra"_s, u"Imam"_s,   u"Joko"_s,   u"Krisna"_s, u"Lukman"_s,
        u"Ma'ruf"_s, u"Nanang"_s, u"Oki"_s,   u"Panji"_s,  u"Rahmat"_s, u"Rizal"_s,  u"Slamet"_s, u"Syafi'i"_s,
        u"Teguh"_s,  u"Umar"_s,   u"Wahyu"_s, u"Yoga"_s,   u"Yusuf"_s,  u"Zainal"_s,
    };
    return names;
}

std::span<const QString> femaleNames() {
    static const QString names[] = {
        u"Anisa"_s, u"Ayu"_s,   u"Citra"_s,   u"Dewi"_s,    u"Dian"_s, u"Endang"_s, u"Fitri"_s,    u"Gita"_s,
        u"Hesti"_s, u"Indah"_s, u"Kartika"_s, u"Lestari"_s, u"Maya"_s, u"Nia"_s,    u"Nur'aini"_s, u"Putri"_s,
        u"Ratna"_s, u"Rina"_s,  u"Sari"_s,    u"Sinta"_s,   u"Siti"_s, u"Tuti"_s,   u"Wulan"_s,    u"Yuni"_s,
    };
    return names;
}

std::span<const QString> familyNames() {
    static const QString names[] = {
        u"Adiputra"_s, u"Anggraini"_s, u"Basuki"_s,    u"Darmawan"_s,  u"Effendi"_s,    u"Firmansyah"_s, u"Gunadi"_s,
        u"Hakim"_s,    u"Handayani"_s, u"Iskandar"_s,  u"Kurniawan"_s, u"Kusuma"_s,     u"Laksana"_s,    u"Mahendra"_s,
        u"Maulana"_s,  u"Nugraha"_s,   u"Pamungkas"_s, u"Permana"_s,   u"Pratama"_s,    u"Purnomo"_s,    u"Ramadhan"_s,
        u"Santosa"_s,  u"Saputra"_s,   u"Setiawan"_s,  u"Siregar"_s,   u"Suryadi"_s,    u"Susanto"_s,    u"Tanjung"_s,
        u"Utami"_s,    u"Wibowo"_s,    u"Wijaya"_s,    u"Yulianti"_s,  u"Zulkarnain"_s,
    };
    return names;
}

std::span<const QString> streets() {
    static const QString names[] = {
        u"Jl. Anggrek"_s, u"Jl. Cempaka Raya"_s, u"Jl. Dahlia"_s,  u"Jl. Flamboyan"_s, u"Jl. Kenanga"_s,
        u"Jl. Mawar"_s,   u"Jl. Melati"_s,       u"Jl. Merpati"_s, u"Gg. Pinang"_s,    u"Perum. Bukit Asri Blok C"_s,
    };
    return names;
}

} // namespace company
