#include "platform/failure.h"

#include <cerrno>

namespace coltre {

Failure system_failure(int error_number) {
    switch (error_number) {
        case 0:
            return std::nullopt;
        case ENOENT:
        case ENOTDIR:
            return "la cartella non esiste";
        case EACCES:
        case EPERM:
            return "permesso negato";
        case EROFS:
            return "la cartella è in sola lettura";
        case ENOSPC:
            return "il disco è pieno";
#ifdef EDQUOT
        case EDQUOT:
            return "la quota disco dell'utente è esaurita";
#endif
        case EEXIST:
            return "il file esiste già";
        case EISDIR:
            return "con questo nome esiste già una cartella o altro che non è un file";
        case EFBIG:
            return "il file supera la dimensione massima consentita";
        case EINVAL:
            return "il nome non è valido";
        case ENAMETOOLONG:
            return "il nome è troppo lungo";
        case ELOOP:
            return "il collegamento simbolico è interrotto";
        case EIO:
            return "il disco segnala un errore";
        case EBUSY:
            return "un altro programma lo tiene aperto";
        case EMFILE:
        case ENFILE:
            return "troppi file sono aperti";
        case ENOMEM:
            return "memoria esaurita";
        case ENETUNREACH:
#ifdef ESTALE
        case ESTALE:
#endif
            return "la cartella di rete non risponde";
        default:
            return "errore di sistema " + std::to_string(error_number);
    }
}

bool may_pass(int error_number) {
    switch (error_number) {
        case EIO:
        case EINTR:
        case EAGAIN:
        case EMFILE:
        case ENFILE:
        case ENOMEM:
        case EBUSY:
        case ENETUNREACH:
#ifdef ESTALE
        case ESTALE:
#endif
            return true;
        default:
            return false;
    }
}

}  // namespace coltre
