// The eight tables of a case, as every version of the file has them. Attributes are set by field
// position, as the tables were first made: in DadosGeraisComplemento the "empty allowed" attribute
// lands on position 1, a number, so that its two text fields refuse a zero-length text.

#include "corvalin/casedb/casoBD.h"

namespace corvalin {

using recordstore::CreateField;
using recordstore::IndexDef;
using recordstore::TableDef;
using recordstore::Tipo;

namespace {

TableDef pTabela(const char* nome, std::vector<recordstore::FieldDef> campos, std::vector<IndexDef> indices = {}) {
    return TableDef{QString::fromLatin1(nome), std::move(campos), std::move(indices)};
}

void pPermiteVazio(TableDef& tabela, std::initializer_list<int> posicoes) {
    for (const int i : posicoes) {
        tabela.Fields.at(static_cast<std::size_t>(i)).AllowZeroLength = true;
    }
}

IndexDef pIndice(const char* nome, bool primario, const char* campos) {
    return IndexDef{QString::fromLatin1(nome), primario, QString::fromLatin1(campos)};
}

}  // namespace

void casoBD::pCriaTabelaCaso() {
    TableDef tabela = pTabela("CasoCORVALIN", {
        CreateField(QStringLiteral("Titulo"), Tipo::Texto, 100),
        CreateField(QStringLiteral("Autor"), Tipo::Texto, 50),
        CreateField(QStringLiteral("Comentarios"), Tipo::Texto, 200),
        CreateField(QStringLiteral("Data"), Tipo::DataHora),
        CreateField(QStringLiteral("Hora"), Tipo::DataHora),
        CreateField(QStringLiteral("Versao"), Tipo::Texto, 10),
    });
    pPermiteVazio(tabela, {0, 1, 2});
    BancoDeDados().Append(tabela);
}

void casoBD::pCriaTabelaOpcoes() {
    TableDef tabela = pTabela("Opcoes", {
        CreateField(QStringLiteral("ArquivoRelatorio"), Tipo::Texto, 50),
        CreateField(QStringLiteral("ArquivoVazoesSemanais"), Tipo::Texto, 50),
        CreateField(QStringLiteral("ArquivoPrevisoes"), Tipo::Texto, 50),
        CreateField(QStringLiteral("ArquivoExcel"), Tipo::Texto, 50),
        CreateField(QStringLiteral("ArquivoDadosGerais"), Tipo::Texto, 50),
        CreateField(QStringLiteral("PastaPrevisoes"), Tipo::Texto, 255),
        CreateField(QStringLiteral("ApagarArquivoRelatorio"), Tipo::Boolean),
        CreateField(QStringLiteral("ApagarArquivoVazoesSemanais"), Tipo::Boolean),
        CreateField(QStringLiteral("ApagarArquivoExcel"), Tipo::Boolean),
        CreateField(QStringLiteral("ApagarArquivoDadosGerais"), Tipo::Boolean),
        CreateField(QStringLiteral("Filtro1"), Tipo::Texto, 20),
        CreateField(QStringLiteral("FiltroDescricao1"), Tipo::Texto, 50),
        CreateField(QStringLiteral("Filtro2"), Tipo::Texto, 20),
        CreateField(QStringLiteral("FiltroDescricao2"), Tipo::Texto, 50),
        CreateField(QStringLiteral("Filtro3"), Tipo::Texto, 20),
        CreateField(QStringLiteral("FiltroDescricao3"), Tipo::Texto, 50),
        CreateField(QStringLiteral("NaoUsaLimite"), Tipo::Boolean),
    });
    pPermiteVazio(tabela, {0, 1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15});
    BancoDeDados().Append(tabela);
}

void casoBD::pCriaTabelaPostos() {
    TableDef tabela = pTabela("Postos",
                              {
                                  CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
                                  CreateField(QStringLiteral("NomeDoAproveitamento"), Tipo::Texto, 60),
                                  CreateField(QStringLiteral("AreaDeDrenagem"), Tipo::Single),
                                  CreateField(QStringLiteral("AnoInicial"), Tipo::Integer),
                                  CreateField(QStringLiteral("AnoFinal"), Tipo::Integer),
                              },
                              {
                                  pIndice("CodigoDoPosto", true, "CodigoDoPosto"),
                                  pIndice("NomeDoAproveitamento", false, "NomeDoAproveitamento"),
                              });
    for (const int i : {2, 3, 4}) {
        tabela.Fields.at(static_cast<std::size_t>(i)).DefaultValue = 0;
    }
    BancoDeDados().Append(tabela);
}

void casoBD::pCriaTabelaDadosGerais() {
    TableDef tabela = pTabela("DadosGerais",
                              {
                                  CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
                                  CreateField(QStringLiteral("ArquivoRelatorio"), Tipo::Texto, 50),
                                  CreateField(QStringLiteral("ArquivoVazoesSemanais"), Tipo::Texto, 50),
                                  CreateField(QStringLiteral("ArquivoPrevisoes"), Tipo::Texto, 50),
                                  CreateField(QStringLiteral("ArquivoExcel"), Tipo::Texto, 50),
                                  CreateField(QStringLiteral("ArquivoDadosGerais"), Tipo::Texto, 50),
                                  CreateField(QStringLiteral("ImpressaoParametros"), Tipo::Boolean),
                                  CreateField(QStringLiteral("Transformacao"), Tipo::Byte),
                                  CreateField(QStringLiteral("MesInicial"), Tipo::Byte),
                                  CreateField(QStringLiteral("ApagarArquivoRelatorio"), Tipo::Boolean),
                                  CreateField(QStringLiteral("ApagarArquivoVazoesSemanais"), Tipo::Boolean),
                                  CreateField(QStringLiteral("ApagarArquivoExcel"), Tipo::Boolean),
                                  CreateField(QStringLiteral("ApagarArquivoDadosGerais"), Tipo::Boolean),
                                  CreateField(QStringLiteral("IntervaloConfianca"), Tipo::Integer),
                                  CreateField(QStringLiteral("CasoUsa53Semanas"), Tipo::Byte),
                              },
                              {pIndice("CodigoDoPosto", true, "CodigoDoPosto")});
    pPermiteVazio(tabela, {1, 2, 3, 4, 5});
    BancoDeDados().Append(tabela);
}

void casoBD::pCriaTabelaDadosGeraisComplemento() {
    TableDef tabela = pTabela("DadosGeraisComplemento",
                              {
                                  CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
                                  CreateField(QStringLiteral("SemanaInicialPrev"), Tipo::Integer),
                                  CreateField(QStringLiteral("AnoInicialPrev"), Tipo::Integer),
                                  CreateField(QStringLiteral("ArqVazpast"), Tipo::Texto, 12),
                                  CreateField(QStringLiteral("AnoFinalHistorico"), Tipo::Integer),
                                  CreateField(QStringLiteral("VazpastSemana_1"), Tipo::Double),
                                  CreateField(QStringLiteral("VazpastSemana_2"), Tipo::Double),
                                  CreateField(QStringLiteral("VazpastSemana_3"), Tipo::Double),
                                  CreateField(QStringLiteral("VazpastSemana_4"), Tipo::Double),
                                  CreateField(QStringLiteral("FlagLimite"), Tipo::Byte),
                                  CreateField(QStringLiteral("ArqLimite"), Tipo::Texto, 12),
                                  CreateField(QStringLiteral("Discretizacao"), Tipo::Byte),
                                  CreateField(QStringLiteral("Magnitude"), Tipo::Byte),
                              },
                              {pIndice("CodigoDoPosto", true, "CodigoDoPosto")});
    pPermiteVazio(tabela, {1});
    BancoDeDados().Append(tabela);
}

void casoBD::pCriaTabelaVazoesSemanais() {
    BancoDeDados().Append(pTabela("VazoesSemanais",
                                  {
                                      CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
                                      CreateField(QStringLiteral("Ano"), Tipo::Integer),
                                      CreateField(QStringLiteral("Semana"), Tipo::Byte),
                                      CreateField(QStringLiteral("Vazao"), Tipo::Single),
                                  },
                                  {
                                      pIndice("CodigoDoPostoAnoSemana", true, "CodigoDoPosto;+Ano;+Semana"),
                                      pIndice("CodigoDoPosto", false, "CodigoDoPosto"),
                                  }));
}

void casoBD::pCriaTabelaVazoesPrevistas() {
    BancoDeDados().Append(pTabela("VazoesPrevistas",
                                  {
                                      CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
                                      CreateField(QStringLiteral("Semana"), Tipo::Byte),
                                      CreateField(QStringLiteral("Previsao"), Tipo::Single),
                                      CreateField(QStringLiteral("LimiteInferior"), Tipo::Single),
                                      CreateField(QStringLiteral("LimiteSuperior"), Tipo::Single),
                                  },
                                  {pIndice("CodigoDoPostoSemana", true, "CodigoDoPosto;+Semana")}));
}

void casoBD::pCriaTabelaLimitesPrevisao() {
    BancoDeDados().Append(pTabela("LimitesPrevisao",
                                  {
                                      CreateField(QStringLiteral("Codigo"), Tipo::Long),
                                      CreateField(QStringLiteral("Tipo"), Tipo::Byte),
                                      CreateField(QStringLiteral("Ordem"), Tipo::Byte),
                                      CreateField(QStringLiteral("LimiteInferior"), Tipo::Double),
                                      CreateField(QStringLiteral("LimiteSuperior"), Tipo::Double),
                                  },
                                  {pIndice("CodigoTipoOrdem", true, "Codigo;+Tipo;+Ordem")}));
}

}  // namespace corvalin
