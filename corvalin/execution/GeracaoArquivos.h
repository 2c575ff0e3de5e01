#pragma once

namespace halvo {
class caso;
}

namespace corvalin {

class JanelaProgresso;
class ListaPostos;
class OpcoesBD;
class PostoBD;

// Writes the model files of every checked station into its station folder before a run: general
// data, Vazpast, weekly flows and, from the assistant only, limits. The writers' results are not
// looked at: the solver meets a missing file and says so in its verdict.
class GeracaoArquivos {
public:
    GeracaoArquivos(const halvo::caso& caso, PostoBD& postoBD, OpcoesBD& opcoesBD);

    // The assistant's generation, under the progress form; the case's option of not using
    // limits reaches each station's general data.
    void pGerarArquivos(const ListaPostos& lista, JanelaProgresso& janela);
    // The host's run: no captions, no options, no limits files.
    void pGerarArquivosDireto(const ListaPostos& lista);

private:
    const halvo::caso& mCaso;
    PostoBD& mPostoBD;
    OpcoesBD& mOpcoesBD;
};

}  // namespace corvalin
