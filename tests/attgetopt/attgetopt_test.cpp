/**
 * attgetopt - the option parser: what it returns word by word, where it stops,
 * and the exact lines that it writes to standard error.
 */
#include "attgetopt/attgetopt.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/** The options of a command line, as found. */
struct lecture {
    std::string
        options;  // the results of `getopt` in order, each with "=argument" if it has one, a blank between
    std::vector<int> optopts;
    int reste = 0;       // index of the first argument that is no option
    std::string erreur;  // standard error
};

lecture lire(const std::vector<std::string>& arguments, const char* opts = "D:vdi") {
    std::vector<std::vector<char>> mots;
    for (const std::string& a : arguments)
        mots.emplace_back(a.c_str(), a.c_str() + a.size() + 1);
    std::vector<char*> argv;
    for (std::vector<char>& mot : mots)
        argv.push_back(mot.data());
    argv.push_back(nullptr);
    const int argc = static_cast<int>(arguments.size());

    lecture l;
    quilvane::recommencerOptions();
    testing::internal::CaptureStderr();
    for (int tour = 0; tour < 50; ++tour) {
        const int c = quilvane::getopt(argc, argv.data(), opts);
        if (c == -1) break;
        if (!l.options.empty()) l.options += ' ';
        l.options += static_cast<char>(static_cast<unsigned char>(c));
        if (quilvane::optarg != nullptr) l.options += std::string("=") + quilvane::optarg;
        l.optopts.push_back(quilvane::optopt);
    }
    l.reste = quilvane::optind;
    l.erreur = testing::internal::GetCapturedStderr();
    return l;
}

/** Turns the messages off for its scope. */
struct silence {
    silence() { quilvane::opterr = 0; }
    ~silence() { quilvane::opterr = 1; }
    silence(const silence&) = delete;
    silence& operator=(const silence&) = delete;
};

const std::string ILLEGALE = "prog: illegal option -- ";
const std::string SANS_ARGUMENT = "prog: option requires an argument -- ";

struct cas {
    std::vector<std::string> arguments;  // behind the program's name
    std::string options;
    int reste;
    std::string erreur = "";
};

void verifier(const std::vector<cas>& rows) {
    for (const cas& r : rows) {
        std::vector<std::string> mots = {"prog"};
        std::string ligne;
        for (const std::string& a : r.arguments) {
            mots.push_back(a);
            ligne += " [" + a + "]";
        }
        SCOPED_TRACE(ligne);
        const lecture l = lire(mots);
        EXPECT_EQ(l.options, r.options);
        EXPECT_EQ(l.reste, r.reste);
        EXPECT_EQ(l.erreur, r.erreur);
    }
}

TEST(Attgetopt, EtatDeDepart) {
    EXPECT_EQ(quilvane::opterr, 1);
    quilvane::recommencerOptions();
    EXPECT_EQ(quilvane::optind, 1);
}

TEST(Attgetopt, SeuleOuGroupees) {
    verifier({
        {{}, "", 1},
        {{"-i"}, "i", 2},
        {{"-i", "-d", "-v"}, "i d v", 4},
        {{"-idv"}, "i d v", 2},
        {{"-id", "-v"}, "i d v", 3},
        {{"-ii"}, "i i", 2},
        {{"-i", "a", "b", "c"}, "i", 2},
    });
}

TEST(Attgetopt, ArretAuPremierMotQuiNEstPasUneOption) {
    verifier({
        {{"a"}, "", 1},
        {{"a", "-i"}, "", 1},
        {{"-i", "a", "-d"}, "i", 2},
        {{"", "-i"}, "", 1},
        {{"-i", "", "-d"}, "i", 2},
        {{"+i"}, "", 1},
        {{" -i"}, "", 1},
        // a lone "-" is a file name and stays
        {{"-"}, "", 1},
        {{"-", "-i"}, "", 1},
        {{"-i", "-", "-d"}, "i", 2},
        // "--" is consumed
        {{"--"}, "", 2},
        {{"--", "-i"}, "", 2},
        {{"-i", "--", "-d"}, "i", 3},
        {{"-i", "--", "--"}, "i", 3},
        // but only as a whole word
        {{"---"}, "? ?", 2, ILLEGALE + "-\n" + ILLEGALE + "-\n"},
        {{"--i"}, "? i", 2, ILLEGALE + "-\n"},
        {{"-i-"}, "i ?", 2, ILLEGALE + "-\n"},
    });
}

TEST(Attgetopt, ArgumentDOption) {
    verifier({
        {{"-Dx"}, "D=x", 2},
        {{"-Dx=1"}, "D=x=1", 2},
        {{"-D", "x"}, "D=x", 3},
        {{"-D", "x", "y"}, "D=x", 3},
        {{"-iDvd"}, "i D=vd", 2},  // the rest of the word, be it option letters
        {{"-iD", "x", "-d"}, "i D=x d", 4},
        {{"-D:"}, "D=:", 2},
        {{"-D-"}, "D=-", 2},
        {{"-DD"}, "D=D", 2},
        // the next word, whatever it is
        {{"-D", "-i"}, "D=-i", 3},
        {{"-D", "-D", "-i"}, "D=-D i", 4},
        {{"-D", "--"}, "D=--", 3},
        {{"-D", "--", "-i"}, "D=-- i", 4},
        {{"-D", "-"}, "D=-", 3},
        {{"-D", ""}, "D=", 3},
        {{"-D", "\xE9"}, "D=\xE9", 3},
        // the argument belongs to its option alone
        {{"-Dx", "-i"}, "D=x i", 3},
        {{"-Dx", "-z"}, "D=x ?", 3, ILLEGALE + "z\n"},
    });
}

TEST(Attgetopt, ArgumentManquant) {
    verifier({
        {{"-D"}, "?", 2, SANS_ARGUMENT + "D\n"},
        {{"-iD"}, "i ?", 2, SANS_ARGUMENT + "D\n"},
        {{"-Dx", "-D"}, "D=x ?", 3, SANS_ARGUMENT + "D\n"},
    });
}

TEST(Attgetopt, OptionInconnue) {
    verifier({
        {{"-x"}, "?", 2, ILLEGALE + "x\n"},
        {{"-x", "-i"}, "? i", 3, ILLEGALE + "x\n"},
        {{"-xi"}, "? i", 2, ILLEGALE + "x\n"},
        {{"-ix"}, "i ?", 2, ILLEGALE + "x\n"},
        {{"-xyz"}, "? ? ?", 2, ILLEGALE + "x\n" + ILLEGALE + "y\n" + ILLEGALE + "z\n"},
        {{"-I"}, "?", 2, ILLEGALE + "I\n"},  // case matters
        {{"-?"}, "?", 2, ILLEGALE + "?\n"},
        {{"- i"}, "? i", 2, ILLEGALE + " \n"},
        {{"-%s"}, "? ?", 2, ILLEGALE + "%\n" + ILLEGALE + "s\n"},
        {{"-\n"}, "?", 2, ILLEGALE + "\n\n"},
    });
}

// ':' stands in the list of options but is none.
TEST(Attgetopt, DeuxPointsNEstPasUneOption) {
    verifier({
        {{"-:"}, "?", 2, ILLEGALE + ":\n"},
        {{"-:i"}, "? i", 2, ILLEGALE + ":\n"},
        {{"-i:"}, "i ?", 2, ILLEGALE + ":\n"},
        {{"-:", "x"}, "?", 2, ILLEGALE + ":\n"},
    });
    // Not even where a ':' follows another in the list.
    EXPECT_EQ(lire({"prog", "-:", "x"}, "a::").options, "?");
}

TEST(Attgetopt, OctetsHorsAscii) {
    for (int octet = 0x7F; octet < 0x100; ++octet) {
        const std::string c(1, static_cast<char>(static_cast<unsigned char>(octet)));
        const lecture l = lire({"prog", "-" + c + "i"});
        EXPECT_EQ(l.options, "? i") << octet;
        EXPECT_EQ(l.erreur, ILLEGALE + c + "\n") << octet;
        EXPECT_EQ(l.optopts, (std::vector<int>{octet, 'i'}));
    }
    EXPECT_EQ(lire({"prog",
                    "-\xE9"
                    "x"},
                   "\xE9:")
                  .options,
              "\xE9=x");
}

TEST(Attgetopt, NomDuProgrammeTelQuel) {
    EXPECT_EQ(lire({"./bin/quilvane", "-x"}).erreur, "./bin/quilvane: illegal option -- x\n");
    EXPECT_EQ(lire({"", "-D"}).erreur, ": option requires an argument -- D\n");
    EXPECT_EQ(lire({"100%d", "-x"}).erreur, "100%d: illegal option -- x\n");
}

TEST(Attgetopt, OpterrNulFaitTaire) {
    const silence s;
    verifier({
        {{"-x", "-i"}, "? i", 3},
        {{"-:"}, "?", 2},
        {{"-D"}, "?", 2},
        {{"-\xE9"}, "?", 2},
    });
}

TEST(Attgetopt, CaractereRegarde) {
    EXPECT_EQ(lire({"prog", "-ix", "-Dy", "-:", "-D"}).optopts, (std::vector<int>{'i', 'x', 'D', ':', 'D'}));
}

TEST(Attgetopt, FinRepetee) {
    for (const std::vector<std::string>& mots :
         {std::vector<std::string>{"prog"}, {"prog", "-i"}, {"prog", "-i", "a"}}) {
        const lecture l = lire(mots);
        std::string prog = "prog", i = "-i", a = "a";
        char* const argv[] = {prog.data(), i.data(), a.data(), nullptr};
        const int argc = static_cast<int>(mots.size());
        EXPECT_EQ(quilvane::getopt(argc, argv, "D:vdi"), -1) << argc;
        EXPECT_EQ(quilvane::optind, l.reste) << argc;
    }
}

}  // namespace
