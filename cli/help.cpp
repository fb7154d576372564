#include "cli/help.h"

#include <algorithm>

#include "text/characters.h"

namespace coltre::cli {

namespace {

void append_row(std::string& help, std::string_view left, std::string_view right) {
    constexpr std::size_t column = 26;
    std::string row = "  " + std::string(left);
    row.append(column - std::min(column, character_count(row)), ' ');
    help += row + " " + std::string(right) + "\n";
}

void append_option(std::string& help, const Key& key) {
    const std::string value = key.type == KeyType::flag ? "" : " " + std::string(key.placeholder);
    std::string meaning(key.meaning);
    if (!key.otherwise.empty()) meaning += " (se manca: " + std::string(key.otherwise) + ")";
    append_row(help, "--" + std::string(key.name) + value, meaning);
}

}  // namespace

std::string general_help() {
    std::string help =
        "Carico neve sulle coperture secondo il D.M. 16 gennaio 1996 e la circolare 4 luglio 1996.\n\n"
        "Uso: coltre-calcolo CALCOLO OPZIONI\n"
        "     coltre-calcolo lotto [--csv] [FILE | -]\n"
        "     coltre-calcolo comuni [TESTO] [--provincia P] [--json]\n"
        "     coltre-calcolo prova [FILE.html]\n"
        "     coltre-calcolo altitudini scrivi | verifica | ripara [DIR]\n\n"
        "Calcoli:\n";
    for (const Description& calculation : calculations())
        append_row(help, calculation.name, calculation.meaning);
    help += "\nAltri comandi:\n";
    append_row(help, "lotto", "elaborazione in serie: una richiesta JSON, o di una tabella CSV, per riga");
    append_row(help, "comuni", "cerca i comuni, anche con il nome di oggi: provincia, zona e altitudine");
    append_row(help, "prova", "esegue i casi di prova e li confronta con gli svolgimenti");
    append_row(help, "altitudini", "scrive, verifica o ripara il file altitudini.txt");
    help += "\nOpzioni:\n";
    append_row(help, "-h, --help", "mostra questo aiuto; dopo un comando, l'aiuto del comando");
    append_row(help, "--version", "la versione");
    help += "\nEsempio:\n  coltre-calcolo una-falda " + std::string(describe(Kind::one_pitch).example) + "\n";
    return help;
}

std::string calculation_help(const Description& calculation) {
    std::string help = "coltre-calcolo " + std::string(calculation.name) + ": " +
                       std::string(calculation.meaning) + "\n\nDati del calcolo (tutti necessari):\n";
    for (const Entry& entry : calculation.entries)
        append_option(help, key_of(entry));
    help += "\nSito (provincia e comune, oppure zona e altitudine) e opzioni comuni:\n";
    for (const Key& key : common_keys())
        append_option(help, key);
    append_option(help, json_option);
    append_row(help, "-h, --help", "mostra questo aiuto");
    help += "\nEsempio:\n  coltre-calcolo " + std::string(calculation.name) + " " +
            std::string(calculation.example) + "\n";
    return help;
}

std::string batch_help() {
    std::string help =
        "coltre-calcolo lotto [--csv] [FILE | -]: calcoli in serie\n\n"
        "Legge una richiesta JSON per riga dal FILE (senza, o con -, dallo standard input) e scrive un "
        "risultato\n"
        "JSON per riga, nello stesso ordine. Le chiavi di una richiesta sono \"calcolo\", un \"id\" "
        "facoltativo,\n"
        "riportato nel risultato, e i nomi delle opzioni di quel calcolo. Una riga errata dà un risultato "
        "con "
        "il suo\n"
        "errore, e il lotto continua.\n\n";
    append_option(help, csv_option);
    return help +
           "\nLa prima riga di una tabella nomina le chiavi. Il separatore (; , o tabulazione) è quello "
           "della "
           "prima\n"
           "riga; con il punto e virgola i numeri hanno la virgola decimale. Una cella vuota è una chiave "
           "che "
           "manca.\n"
           "Il risultato è la stessa tabella con le colonne dei risultati; \"errore\" è l'ultima.\n\n"
           "Stato di uscita: 0 esito positivo, 1 qualche richiesta non riuscita, 2 uso errato.\n\n"
           "Esempio:\n"
           "  echo '{\"calcolo\": \"una-falda\", \"zona\": 0, \"altitudine\": 239, \"alfa\": 15}' | "
           "coltre-calcolo "
           "lotto\n"
           "  coltre-calcolo lotto --csv siti.csv > risultati.csv\n";
}

std::string places_help() {
    std::string help =
        "coltre-calcolo comuni [TESTO] [--provincia P] [--json]: comuni, zone e altitudini\n\n"
        "Elenca i comuni il cui nome, del 1996 o di oggi, contiene il TESTO, senza distinguere maiuscole, "
        "accenti,\n"
        "apostrofi e spazi; senza TESTO, tutti. Le altitudini sono quelle del file altitudini.txt.\n\n"
        "Opzioni:\n";
    append_row(help, "--provincia P", "soltanto i comuni di questa provincia, o di questa sigla di oggi");
    append_row(help, "--json", "un oggetto JSON per riga invece della tabella");
    append_row(help, "-h, --help", "mostra questo aiuto");
    return help +
           "\nStato di uscita: 0 esito positivo, 1 nessun comune trovato, 2 uso errato.\n\n"
           "Esempio:\n"
           "  coltre-calcolo comuni valsamoggia\n";
}

std::string worked_cases_help() {
    return "coltre-calcolo prova [FILE.html]: i casi di prova\n\n"
           "Esegue con questo programma i casi svolti per esteso senza di esso ed elenca quelli che non "
           "riproduce. Con\n"
           "un FILE vi scrive anche il documento dei casi, con gli svolgimenti e i numeri attesi e "
           "trovati.\n\n"
           "Stato di uscita: 0 tutti riprodotti, 1 qualcuno no, o il FILE non si può scrivere.\n\n"
           "Esempio:\n"
           "  coltre-calcolo prova casi.html\n";
}

std::string altitudes_help() {
    return "coltre-calcolo altitudini scrivi | verifica | ripara [DIR]: il file altitudini.txt\n\n"
           "  scrivi      scrive il file dalla tabella del programma; un file diverso è conservato come "
           "altitudini.bak\n"
           "  verifica    elenca le righe che il programma non riesce a leggere; stato di uscita 1 se ce ne "
           "sono\n"
           "  ripara      conserva il file come altitudini.bak e ne scrive una copia senza quei difetti;\n"
           "              le altitudini modificate dall'utente restano\n\n"
           "Senza DIR vale la cartella del programma.\n\n"
           "Esempio:\n"
           "  coltre-calcolo altitudini verifica .\n";
}

}  // namespace coltre::cli
