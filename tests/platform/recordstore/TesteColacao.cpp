#include "Apoio.h"

namespace {

class Colacao : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        postos = bd->OpenRecordset(u"Postos"_s);
        int codigo = 0;
        for (const char* nome :
             {"São Simão", "furnas", "Sao Simao", "Água Vermelha", "FURNAS", "Agua Limpa", "Balbina"}) {
            adicionaPosto(*postos, ++codigo, QString::fromUtf8(nome));
        }
        postos->setIndex(u"NomeDoAproveitamento"_s);
    }

    QString seek(const char* comparacao, const char* nome) {
        postos->Seek(QString::fromLatin1(comparacao), {QString::fromUtf8(nome)});
        return postos->NoMatch() ? u"(nada)"_s : texto(*postos, "NomeDoAproveitamento");
    }

    std::unique_ptr<Recordset> postos;
};

}  // namespace

TEST_F(Colacao, TextSortsAndSeeksIgnoringCaseButNotAccents) {
    // Case ties keep the order of insertion; an accent sorts after its plain letter.
    QStringList nomes;
    for (postos->MoveFirst(); !postos->Eof(); postos->MoveNext()) {
        nomes << texto(*postos, "NomeDoAproveitamento");
    }
    EXPECT_EQ(nomes, QStringList({u"Agua Limpa"_s, u"Água Vermelha"_s, u"Balbina"_s, u"furnas"_s, u"FURNAS"_s,
                                  u"Sao Simao"_s, u"São Simão"_s}));
    confere<QString>({CASO(seek("=", "Furnas"), "furnas"), CASO(seek("=", "SÃO SIMÃO"), u"São Simão"_s),
                      CASO(seek("=", "Agua Vermelha"), "(nada)"),
                      CASO(seek(">=", "agua m"), u"Água Vermelha"_s),
                      CASO(seek(">=", "sao simao"), "Sao Simao")});
    postos->Seek(u"="_s, {u"x"_s.repeated(80)});  // longer than the field: no match
    EXPECT_TRUE(postos->NoMatch());
}

TEST_F(Colacao, AUniqueTextKeyRefusesTheSameTextInAnotherCase) {
    bd->Append({u"Siglas"_s, {CreateField(u"Sigla"_s, Tipo::Texto, 10)}, {{u"Sigla"_s, true, u"Sigla"_s}}});
    auto siglas = bd->OpenRecordset(u"Siglas"_s);
    adiciona(*siglas, {{"Sigla", u"São"_s}});
    adiciona(*siglas, {{"Sigla", u"Sao"_s}});  // another accent is another text
    EXPECT_EQ(numeroDoErro([&] { adiciona(*siglas, {{"Sigla", u"SÃO"_s}}); }), 3022);
}
