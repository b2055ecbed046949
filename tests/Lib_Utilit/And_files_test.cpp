#include "And_files.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "Lecteur.hpp"
#include "Outils.hpp"

using testing::ElementsAre;

namespace {

void loc_terme(type_terme type, const std::string& texte) {
  and_global.and_type_terme = type;
  and_global.and_var_chaine = texte;
  and_global.and_lg_terme = static_cast<int>(texte.size());
}
void loc_entier(int valeur, const std::string& texte = "") {
  loc_terme(type_terme::entier, texte);
  and_global.and_var_entier_ou_operateur = valeur;
}
void loc_simple(float valeur, const std::string& texte = "") {
  loc_terme(type_terme::reel_s, texte);
  and_global.and_var_reel = valeur;
}
void loc_double(double valeur, const std::string& texte = "") {
  loc_terme(type_terme::reel_d, texte);
  and_global.and_var_reel_d = valeur;
}
void loc_tete(type_terme type, int compte) {
  loc_terme(type, "");
  and_global.and_var_entier_ou_operateur = compte;
}

std::string loc_texte() {
  return std::string(
      and_global.and_var_chaine.entier().substr(0, static_cast<std::size_t>(and_global.and_lg_terme)));
}

/// All integers that leave the head of FILE 1.
std::vector<int> loc_vider_entiers() {
  std::vector<int> resultat;
  for (and_lecture(3, 1, 1); and_global.and_type_terme == type_terme::entier; and_lecture(3, 1, 1))
    resultat.push_back(and_global.and_var_entier_ou_operateur);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file);
  return resultat;
}

}  // namespace

TEST(Files, DeLaTete) {
  const lecteur l("");
  for (int i = 1; i <= 4; ++i) {
    loc_entier(i, "00" + std::to_string(i));
    and_ecriture(3, 1);
  }
  EXPECT_EQ(and_nb_termes(3, 1), 4);
  EXPECT_EQ(and_texte_file(3, 1), " 001 002 003 004");
  EXPECT_THAT(loc_vider_entiers(), ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(and_nb_termes(3, 1), 0);
  EXPECT_EQ(and_texte_file(3, 1), "") << "an empty queue has all its characters again";
}

TEST(Files, DeLaQueue) {
  const lecteur l("");
  for (int i = 1; i <= 3; ++i) {
    loc_entier(i, std::to_string(i));
    and_ecriture(1, 3);
  }
  and_lecture(1, 3, -1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 3);
  EXPECT_EQ(loc_texte(), "3");
  EXPECT_EQ(and_texte_file(1, 3), " 1 2");
  loc_double(2.5, "2.5D0");
  and_ecriture(1, 3);
  and_lecture(1, 3, -1);
  EXPECT_EQ(and_global.and_var_reel_d, 2.5);
  and_lecture(1, 3, -1);
  and_lecture(1, 3, -1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 1);
  and_lecture(1, 3, -1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file);
}

TEST(Files, UneFileVide) {
  const lecteur l("");
  and_lecture(2, 7, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 207);
  EXPECT_TRUE(and_global.and_var_chaine == " ERREUR DANS ANADON : TERME = TYPE_FIN_FILE");
  and_consulter(3, 1, 1);
  and_consulter(3, 1, 0);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 301);
}

TEST(Files, ToutesLesSortesDeTermes) {
  const lecteur l("");
  loc_simple(0.1F, ".1");
  and_ecriture(2, 2);
  loc_double(0.1, ".1D0");
  and_ecriture(2, 2);
  loc_terme(type_terme::chaine, "'x y'");
  and_ecriture(2, 2);
  loc_tete(type_terme::operateur, 22);
  and_ecriture(2, 2);
  and_lecture(2, 2, 1);
  EXPECT_EQ(and_global.and_var_reel, 0.1F);
  EXPECT_EQ(loc_texte(), ".1");
  and_lecture(2, 2, 1);
  EXPECT_EQ(and_global.and_var_reel_d, 0.1);
  and_lecture(2, 2, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::chaine);
  EXPECT_EQ(loc_texte(), "'x y'");
  and_lecture(2, 2, 1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 22);
}

TEST(Files, LAnneauFaitLeTour) {
  const lecteur l("");
  int ecrits = 0;
  int lus = 0;
  for (int i = 0; i < 400; ++i, ++ecrits) {
    loc_entier(ecrits);
    and_ecriture(2, 3);
  }
  for (int tour = 0; tour < 300; ++tour) {
    and_lecture(2, 3, 1);
    ASSERT_EQ(and_global.and_var_entier_ou_operateur, lus++);
    loc_entier(ecrits++);
    and_ecriture(2, 3);
    ASSERT_EQ(and_global.and_type_terme, type_terme::entier);
  }
  EXPECT_EQ(and_nb_termes(2, 3), 400);
  and_consulter(2, 3, 399);
  and_consulter(2, 3, 0);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, lus + 398) << "ranks run over the end of the ring";
  and_lecture(2, 3, -1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, ecrits - 1);
}

TEST(Repetition, LesCopiesSortentUneAUne) {
  const lecteur l("");
  for (const int compte : {1, 2, 3, 5}) {
    loc_tete(type_terme::tete_repetition, compte);
    and_ecriture(3, 1);
    loc_entier(7, "007");
    and_ecriture(3, 1);
    loc_entier(8, "8");
    and_ecriture(3, 1);
    for (int i = 0; i < compte; ++i) {
      and_lecture(3, 1, 1);
      ASSERT_EQ(and_global.and_var_entier_ou_operateur, 7);
      EXPECT_EQ(loc_texte(), "007") << "a copy keeps the text that was typed";
    }
    EXPECT_THAT(loc_vider_entiers(), ElementsAre(8));
  }
}

TEST(Repetition, LaTeteQuitteLaFileAuCompteDeUn) {
  const lecteur l("");
  loc_tete(type_terme::tete_repetition, 2);
  and_ecriture(3, 1);
  loc_entier(7);
  and_ecriture(3, 1);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_nb_termes(3, 1), 1);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_nb_termes(3, 1), 0);
}

TEST(Increment, UneSerieDEntiers) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 3);  // four values
  and_ecriture(3, 1);
  loc_entier(10, "010");
  and_ecriture(3, 1);
  loc_entier(-2);
  and_ecriture(3, 1);
  loc_entier(99, "99");
  and_ecriture(3, 1);
  and_lecture(3, 1, 1);
  EXPECT_EQ(loc_texte(), "010") << "the first value as it was typed";
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 8);
  EXPECT_EQ(loc_texte(), "") << "the others have no text yet";
  EXPECT_EQ(and_nb_termes(3, 1), 4);
  EXPECT_THAT(loc_vider_entiers(), ElementsAre(6, 4, 99));
}

TEST(Increment, UnSeulPas) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 0);
  and_ecriture(3, 1);
  loc_entier(10);
  and_ecriture(3, 1);
  loc_entier(1);
  and_ecriture(3, 1);
  EXPECT_THAT(loc_vider_entiers(), ElementsAre(10));
}

// The value is stepped in double and narrowed on its way out: it doesn't drift as a sum of singles does.
TEST(Increment, UneSerieDeSimples) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 999);
  and_ecriture(3, 1);
  loc_simple(0.0F, "0.");
  and_ecriture(3, 1);
  loc_simple(0.1F, ".1");
  and_ecriture(3, 1);
  double attendue = 0;
  for (int i = 0; i < 1000; ++i) {
    and_lecture(3, 1, 1);
    ASSERT_EQ(and_global.and_type_terme, type_terme::reel_s);
    ASSERT_EQ(and_global.and_var_reel, static_cast<float>(attendue)) << i;
    attendue += static_cast<double>(0.1F);
  }
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file);
}

TEST(Increment, UneSerieDeDoubles) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 1);
  and_ecriture(3, 1);
  loc_double(1.5);
  and_ecriture(3, 1);
  loc_double(0.25);
  and_ecriture(3, 1);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_var_reel_d, 1.5);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_var_reel_d, 1.75);
  EXPECT_EQ(and_nb_termes(3, 1), 0);
}

TEST(Increment, LesEntiersTournentModulo2Puissance32) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 1);
  and_ecriture(3, 1);
  loc_entier(2147483647);
  and_ecriture(3, 1);
  loc_entier(1);
  and_ecriture(3, 1);
  EXPECT_THAT(loc_vider_entiers(), ElementsAre(2147483647, -2147483647 - 1));
}

TEST(Increment, CentMilleValeursDansTroisEntrees) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 99999);
  and_ecriture(3, 1);
  loc_entier(1);
  and_ecriture(3, 1);
  loc_entier(1);
  and_ecriture(3, 1);
  EXPECT_EQ(and_nb_termes(3, 1), 3);
  const std::vector<int> valeurs = loc_vider_entiers();
  ASSERT_EQ(valeurs.size(), 100000U);
  EXPECT_EQ(valeurs.back(), 100000);
}

TEST(Increment, UneTeteSansSesValeursSortTelleQuelle) {
  const lecteur l("");
  loc_tete(type_terme::tete_increment, 5);
  and_ecriture(3, 1);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::tete_increment);
  EXPECT_EQ(and_nb_termes(3, 1), 0);
}

TEST(Consultation, SansRienOter) {
  const lecteur l("");
  for (int i = 1; i <= 3; ++i) {
    loc_entier(10 * i);
    and_ecriture(2, 1);
  }
  EXPECT_EQ(and_position_lecture(2, 1), -1);
  and_consulter(2, 1, 0);
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_file) << "no reading in progress";
  const auto suivant = [] {
    and_consulter(2, 1, 0);
    return and_global.and_type_terme == type_terme::entier ? and_global.and_var_entier_ou_operateur : 0;
  };
  and_consulter(2, 1, 1);
  EXPECT_EQ(and_position_lecture(2, 1), 1);
  and_reconsulter(2, 1);
  EXPECT_EQ(suivant(), 10) << "nothing comes before the first term";
  EXPECT_EQ(suivant(), 20);
  EXPECT_EQ(and_position_lecture(2, 1), 3);
  and_reconsulter(2, 1);
  and_reconsulter(2, 1);
  EXPECT_EQ(suivant(), 20);
  EXPECT_EQ(suivant(), 30);
  EXPECT_EQ(suivant(), 0);
  and_reconsulter(2, 1);
  EXPECT_EQ(suivant(), 30);
  and_consulter(2, 1, -1);
  EXPECT_EQ(suivant(), 30);
  and_consulter(2, 1, 2);
  EXPECT_EQ(suivant(), 20);
  and_consulter(2, 1, 9);
  EXPECT_EQ(suivant(), 0);
  loc_entier(40);
  and_consulter(2, 1, 4);
  and_ecriture(2, 1);
  EXPECT_EQ(suivant(), 40) << "a term that comes in later is read";
  EXPECT_EQ(and_nb_termes(2, 1), 4);
  and_initialiser_structure(2, 1);
  EXPECT_EQ(and_nb_termes(2, 1), 0);
  EXPECT_EQ(and_position_lecture(2, 1), -1);
}

TEST(Consultation, UneTeteEstServieTelleQuelle) {
  const lecteur l("");
  loc_tete(type_terme::tete_repetition, 3);
  and_ecriture(3, 2);
  and_consulter(3, 2, 1);
  and_consulter(3, 2, 0);
  EXPECT_EQ(and_global.and_type_terme, type_terme::tete_repetition);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 3);
}

TEST(Entree, UnTermeLuVaDansLaPrefile) {
  const lecteur l("un 2 3.5 4.5D0 'cinq' ; * 12A");
  for (int i = 0; i < 7; ++i) and_lecture(0, 2, 1);
  EXPECT_EQ(and_texte_file(2, 2), " un 2 3.5 4.5D0 'cinq' ; *");
  and_consulter(0, 2, 0);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_lexicale);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 5);
  EXPECT_EQ(and_nb_termes(2, 2), 7) << "an error stays outside";
}

TEST(Entree, LeDernierTermePeutEtreRelu) {
  const lecteur l("un deux trois");
  and_lecture(0, 1, 1);
  and_reconsulter(0, 1);
  and_reconsulter(0, 1);
  and_lecture(0, 1, 1);
  EXPECT_EQ(loc_texte(), "un");
  EXPECT_EQ(and_nb_termes(2, 1), 1) << "it stands there once";
  and_lecture(0, 1, 1);
  EXPECT_EQ(loc_texte(), "deux");
}

// A unit that ended by looking at the next term gives it back, and the next unit begins with an empty queue.
TEST(Entree, UnTermeRenduRevientDansLaFileVidee) {
  const lecteur l("un 2.5");
  and_lecture(0, 1, 1);
  and_lecture(0, 1, 1);
  and_reconsulter(0, 1);
  and_initialiser_structure(2, 1);
  loc_entier(99);
  and_lecture(0, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::reel_s);
  EXPECT_EQ(and_global.and_var_reel, 2.5F);
  EXPECT_EQ(and_texte_file(2, 1), " 2.5");
}

TEST(Entree, UnTermeRenduPeutAllerDansUneAutreFile) {
  const lecteur l("un deux");
  and_lecture(0, 1, 1);
  and_reconsulter(0, 1);
  and_lecture(0, 3, 1);
  EXPECT_EQ(and_texte_file(2, 3), " un");
}

TEST(Entree, LaRelectureAilleursQuEn1EstUneFauteInterne) {
  const lecteur l("un");
  EXPECT_EQ(statut_d_arret([] { and_reconsulter(0, 2); }), 10);
  EXPECT_EQ(l.console(), "erreur anadon _ reconsulter\n");
}

TEST(Entree, LesFilesQuiNExistentPasSontDesFautesInternes) {
  const lecteur l("un");
  EXPECT_EQ(statut_d_arret([] { and_ecriture(0, 1); }), 10);
  EXPECT_EQ(statut_d_arret([] { and_ecriture(1, 4); }), 10);
  EXPECT_EQ(statut_d_arret([] { and_lecture(2, 11, 1); }), 10);
  EXPECT_EQ(statut_d_arret([] { and_initialiser_structure(4, 1); }), 10);
}

TEST(Capacites, ChaqueFileASaPlace) {
  const lecteur l("");
  int termes = 0;
  int caracteres = 0;
  for (const auto& classe : and_global.and_controle_files)
    for (const auto& file : classe) {
      termes += file.capacite;
      caracteres += file.capacite_caracteres;
    }
  EXPECT_EQ(termes, and_nb_termes_total);
  EXPECT_EQ(caracteres, and_nb_caracteres_total);
}

TEST(Capacites, TropDeTermes) {
  const lecteur l("");
  for (int i = 1; i <= 100; ++i) {
    loc_entier(i);
    and_ecriture(1, 3);
  }
  EXPECT_EQ(and_global.and_type_terme, type_terme::entier);
  loc_entier(101);
  and_ecriture(1, 3);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_capacite);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 103);
  EXPECT_TRUE(and_global.and_message == " DEPASSEMENT CAPACITE  DANS LISTE OPERANDE");
  EXPECT_TRUE(and_global.and_var_chaine == " DEPASSEMENT CAPACITE  DANS LISTE OPERANDE");
  EXPECT_EQ(and_global.and_lg_terme, 80);
  and_lecture(1, 3, -1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 100);
}

TEST(Capacites, TropDeCaracteres) {
  const lecteur l("");
  for (int i = 1; i <= 10; ++i) {
    loc_entier(i, std::string(199, '0'));
    and_ecriture(3, 4);
  }
  EXPECT_EQ(and_texte_file(3, 4).size(), 2000U);
  loc_entier(11);
  and_ecriture(3, 4);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_capacite);
  EXPECT_TRUE(and_global.and_message == " DEPASSEMENT CAPACITE  DANS FILE      4");
  EXPECT_EQ(and_nb_termes(3, 4), 500) << "it counts as full";
  for (int i = 1; i <= 10; ++i) {
    and_lecture(3, 4, 1);
    ASSERT_EQ(and_global.and_var_entier_ou_operateur, i);
  }
  and_lecture(3, 4, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_capacite) << "what never came in";
}

TEST(Capacites, NomsDesFiles) {
  const lecteur l("");
  const auto message = [](int classe, int file) {
    for (loc_entier(1); and_global.and_type_terme == type_terme::entier;) and_ecriture(classe, file);
    return std::string(and_global.and_message.utile());
  };
  EXPECT_EQ(message(1, 1), " DEPASSEMENT CAPACITE  DANS LISTE SORTIE");
  EXPECT_EQ(message(1, 2), " DEPASSEMENT CAPACITE  DANS LISTE VARIABLE");
  EXPECT_EQ(message(2, 1), " DEPASSEMENT CAPACITE  DANS PREFILE SORTIE");
  EXPECT_EQ(message(2, 10), " DEPASSEMENT CAPACITE  DANS PREFILE     10");
  EXPECT_EQ(message(3, 1), " DEPASSEMENT CAPACITE  DANS FILE SORTIE");
}

TEST(Formats, TexteDUnNombreSansTexte) {
  const lecteur l("");
  const auto entier = [](int v) {
    loc_entier(v);
    and_formater_terme();
    return loc_texte();
  };
  const auto simple = [](float v) {
    loc_simple(v);
    and_formater_terme();
    return loc_texte();
  };
  const auto reel_d = [](double v) {
    loc_double(v);
    and_formater_terme();
    return loc_texte();
  };
  EXPECT_EQ(entier(0), "0");
  EXPECT_EQ(entier(-2147483647 - 1), "-2147483648");
  EXPECT_EQ(entier(1000000), "1000000");
  EXPECT_EQ(simple(5.0F), "5.000");
  EXPECT_EQ(simple(0.5F), "0.5000");
  EXPECT_EQ(simple(0.25F), "0.25000");
  EXPECT_EQ(simple(400.0F), "400.000");
  EXPECT_EQ(simple(0.1F), "0.1000");
  EXPECT_EQ(simple(1234567.0F), "1234567.");
  EXPECT_EQ(simple(1000000.0F), "1000000.");
  EXPECT_EQ(simple(1e10F), "0.1000E+11");
  EXPECT_EQ(simple(1.5e-20F), "0.15000E-19");
  EXPECT_EQ(simple(0.0F), "0.000");
  EXPECT_EQ(reel_d(1.5), "0.15000D+01");
  EXPECT_EQ(reel_d(1.0 / 3.0), "0.33333333333333D+00");
  EXPECT_EQ(reel_d(-1e150), "-0.1000+151");
  EXPECT_EQ(reel_d(1e200), "0.1000+201");
  loc_entier(7, "007");
  and_formater_terme();
  EXPECT_EQ(loc_texte(), "007") << "a number keeps the text that was typed";
}
