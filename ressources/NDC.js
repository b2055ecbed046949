// Summary of a calculation note: its levels open and close, and the whole of it makes room for the text.
// A note is complete without this script: every level is then open, and every link works.

// Opens or closes the level of this id; called by the mark in front of a title.
function expandcontent(titre, id) {
  var niveau = document.getElementById(id);
  if (niveau) montrer_niveau(titre, niveau, niveau.style.display === "none");
}

function montrer_niveau(titre, niveau, ouvert) {
  niveau.style.display = ouvert ? "" : "none";
  titre.setAttribute("aria-expanded", ouvert ? "true" : "false");
  var marque = titre.querySelector(".showstate");
  if (marque) marque.textContent = ouvert ? "\u2212" : "+";
}

// The mark of a title is a button for the keyboard too. Two levels are open at first: a note of many load cases
// starts with a short summary.
function preparer_titre(titre) {
  var niveau = titre.parentNode.querySelector(".switchcontent");
  if (!niveau) return;
  titre.setAttribute("role", "button");
  titre.setAttribute("tabindex", "0");
  titre.setAttribute("aria-label", "Ouvrir ou fermer ce niveau");
  titre.addEventListener("keydown", function (evenement) {
    if (evenement.key !== "Enter" && evenement.key !== " ") return;
    evenement.preventDefault();
    expandcontent(titre, niveau.id);
  });
  montrer_niveau(titre, niveau, !niveau.parentNode.closest(".switchcontent"));
}

// The button folds the summary away and brings it back.
function preparer_bouton(bouton, sommaire) {
  bouton.setAttribute("aria-expanded", "true");
  bouton.addEventListener("click", function (evenement) {
    evenement.preventDefault();
    var reduit = sommaire.style.display !== "none";
    sommaire.style.display = reduit ? "none" : "";
    document.body.classList.toggle("sommaire_reduit", reduit);
    bouton.setAttribute("aria-expanded", reduit ? "false" : "true");
    bouton.textContent = reduit ? "D\u00e9velopper le sommaire" : "R\u00e9duire le sommaire";
  });
}

document.addEventListener("DOMContentLoaded", function () {
  var sommaire = document.getElementById("Tab_sommaire_dynam");
  var bouton = document.getElementById("reduire_sommaire");
  if (!sommaire) return;
  Array.prototype.forEach.call(sommaire.querySelectorAll("span[onclick]"), preparer_titre);
  if (bouton) preparer_bouton(bouton, sommaire);
});
