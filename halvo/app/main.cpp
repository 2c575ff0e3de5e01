#include "halvo/app/LinhaDeComando.h"
#include "halvo/app/Modelos.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[]) {
    QCoreApplication aplicacao(argc, argv);
    QTextStream saida(stdout);
    QTextStream erro(stderr);
    const halvo::Modelos modelos(halvo::Modelos::PastaPadrao());
    halvo::LinhaDeComando linha(modelos, saida, erro);
    return linha.Executa(QCoreApplication::arguments().mid(1));
}
