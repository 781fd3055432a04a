#include "lot/file.h"

#include <sys/eventfd.h>

#include <cstdint>

namespace quilvane::lot {

namespace {

void accomplir(atelier& t, const tache& quoi, compteRendu& r) {
    casier c;
    if (quoi.reprise) {
        const eReprise repris = reprendreCasier(t.d, quoi.nom, c, r.f);
        r.panne = repris == REPRISE_IMPOSSIBLE;
        if (repris != REPRIS) return;
    } else {
        const ePrise prise = prendre(t, quoi.nom, c, r.f);
        if (prise == PRISE_REFUSEE) r.ecarte = quoi.nom;
        r.panne = prise == PRISE_REFUSEE || prise == PRISE_EN_PANNE;
        if (prise != PRISE) return;
    }
    r.panne = !traiter(t, c, r.b, r.f);
}

void servir(file& f, atelier& t) {
    std::unique_lock garde(f.m);
    for (;;) {
        f.reveil.wait(garde, [&f] { return f.finie || !f.aFaire.empty(); });
        if (f.aFaire.empty()) return;
        const tache quoi = f.aFaire.front();
        f.aFaire.pop_front();
        ++f.enMain;
        garde.unlock();
        compteRendu r;
        accomplir(t, quoi, r);
        garde.lock();
        --f.enMain;
        f.faits.push_back(r);
        eventfd_write(f.cloche.fd, 1);
    }
}

}  // namespace

bool ouvrirFile(file& f, atelier& t, int nombre) {
    f.cloche = descripteur(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!f.cloche.ouvert()) return false;
    for (int i = 0; i < nombre; ++i)
        f.fils.emplace_back([&f, &t] { servir(f, t); });
    return true;
}

void confier(file& f, const std::vector<tache>& taches) {
    const std::lock_guard garde(f.m);
    f.aFaire.insert(f.aFaire.end(), taches.begin(), taches.end());
    f.reveil.notify_all();
}

long abandonner(file& f) {
    const std::lock_guard garde(f.m);
    const auto n = static_cast<long>(f.aFaire.size());
    f.aFaire.clear();
    return n;
}

long recueillir(file& f, std::vector<compteRendu>& faits) {
    const std::lock_guard garde(f.m);
    eventfd_t coups = 0;
    eventfd_read(f.cloche.fd, &coups);
    faits.swap(f.faits);
    f.faits.clear();
    return static_cast<long>(f.aFaire.size()) + f.enMain;
}

void fermerFile(file& f) {
    {
        const std::lock_guard garde(f.m);
        f.finie = true;
        f.reveil.notify_all();
    }
    for (std::thread& fil : f.fils)
        fil.join();
    f.fils.clear();
}

}  // namespace quilvane::lot
