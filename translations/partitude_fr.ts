<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
<context>
    <name>Activities</name>
    <message>
        <source>Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers</source>
        <translation>Des nombres mixtes aux fractions plus grandes que 1, et inversement</translation>
    </message>
    <message>
        <source>Choose 10 or 20 questions. Answer them correctly to gain a certificate.</source>
        <translation>Choisis 10 ou 20 questions. Réponds-y correctement pour gagner un diplôme.</translation>
    </message>
    <message>
        <source>Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.</source>
        <translation>Choisis 10 ou 20 questions. Réponds correctement à toutes ces questions pour gagner un diplôme.</translation>
    </message>
    <message>
        <source>Halves and Quarters 1</source>
        <translation>Demis et quarts 1</translation>
    </message>
    <message>
        <source>Halves and Quarters 2</source>
        <translation>Demis et quarts 2</translation>
    </message>
    <message>
        <source>Halves and Quarters 3</source>
        <translation>Demis et quarts 3</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 1</source>
        <translation>Demis, quarts, tiers et dixièmes 1</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 2</source>
        <translation>Demis, quarts, tiers et dixièmes 2</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 3</source>
        <translation>Demis, quarts, tiers et dixièmes 3</translation>
    </message>
    <message>
        <source>Equivalent Fractions 3</source>
        <translation>Fractions équivalentes 3</translation>
    </message>
    <message>
        <source>Equivalent Fractions 2</source>
        <translation>Fractions équivalentes 2</translation>
    </message>
    <message>
        <source>Write A Fraction</source>
        <translation>Écris une fraction</translation>
    </message>
    <message>
        <source>Equivalent Fractions 1</source>
        <translation>Fractions équivalentes 1</translation>
    </message>
    <message>
        <source>More Than, Less Than</source>
        <translation>Plus grand, plus petit</translation>
    </message>
    <message>
        <source>Fractions of Numbers</source>
        <translation>Fractions d&apos;un nombre</translation>
    </message>
    <message>
        <source>Equivalent Fractions</source>
        <translation>Fractions équivalentes</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Simplifier</translation>
    </message>
    <message>
        <source>Mixed Numbers and Improper Fractions</source>
        <translation>Nombres mixtes et fractions plus grandes que 1</translation>
    </message>
    <message>
        <source>Partitude</source>
        <translation>Partitude</translation>
    </message>
    <message>
        <source>Mixed Numbers To Improper Fractions</source>
        <translation>Des nombres mixtes aux fractions plus grandes que 1</translation>
    </message>
    <message>
        <source>Improper Fractions To Mixed Numbers</source>
        <translation>Des fractions plus grandes que 1 aux nombres mixtes</translation>
    </message>
    <message>
        <source>Decimals Between</source>
        <translation>Décimaux entre deux nombres</translation>
    </message>
    <message>
        <source>Place In Order</source>
        <translation>Range dans l&apos;ordre</translation>
    </message>
    <message>
        <source>How Many?</source>
        <translation>Combien&#xa0;?</translation>
    </message>
    <message>
        <source>Finding Amounts</source>
        <translation>Trouve la quantité</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Les chiffres</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Arrondir</translation>
    </message>
</context>
<context>
    <name>ActivityForm</name>
    <message>
        <source>10 Questions</source>
        <translation>10 questions</translation>
    </message>
    <message>
        <source>20 Questions</source>
        <translation>20 questions</translation>
    </message>
    <message>
        <source>Print WorkSheet</source>
        <translation>Imprimer la fiche</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Check Answers</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortir</translation>
    </message>
    <message>
        <source>  You are now ready for the Challenge.  %1 correct answers on the run, with no hints. Click Start to take the Challenge.</source>
        <translation>  Tu es prêt pour le Défi.  %1 bonnes réponses d&apos;affilée, sans indice. Clique sur Commencer pour relever le Défi.</translation>
    </message>
    <message>
        <source>your reward picture</source>
        <translation>ton image de récompense</translation>
    </message>
</context>
<context>
    <name>ActivityMenu</name>
    <message>
        <source>Open more activities</source>
        <translation>Ouvrir d&apos;autres activités</translation>
    </message>
    <message>
        <source>Open this activity</source>
        <translation>Ouvrir cette activité</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Au revoir</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Revenir en arrière</translation>
    </message>
</context>
<context>
    <name>Amounts</name>
    <message>
        <source>%1 kg</source>
        <translation>%1 kg</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>£%1</source>
        <translation>%1 £</translation>
    </message>
    <message>
        <source>What is %1 of %2?</source>
        <translation>Combien font %1 de %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 de %2, c&apos;est %3.</translation>
    </message>
    <message>
        <source>0 is not the answer: every amount here is more than 0.</source>
        <translation>0 n&apos;est pas la réponse&#xa0;: ici, chaque quantité est plus grande que 0.</translation>
    </message>
    <message>
        <source>To find %1 of %2, divide by %3: %2 ÷ %3 = %4.</source>
        <translation>Pour trouver %1 de %2, divise par %3&#xa0;: %2 ÷ %3 = %4.</translation>
    </message>
    <message>
        <source>1/%1 of %2 is %2 ÷ %1 = %3, so %4 of %2 is %3 × %5 = %6.</source>
        <translation>1/%1 de %2, c&apos;est %2 ÷ %1 = %3, donc %4 de %2, c&apos;est %3 × %5 = %6.</translation>
    </message>
    <message>
        <source>1% is one hundredth: %1 ÷ 100 = %2.</source>
        <translation>1&#xa0;% est un centième&#xa0;: %1 ÷ 100 = %2.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2. 5% is half of 10%: %2 ÷ 2 = %3.</source>
        <translation>10&#xa0;% est un dixième&#xa0;: %1 ÷ 10 = %2. 5&#xa0;% est la moitié de 10&#xa0;%&#xa0;: %2 ÷ 2 = %3.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2.</source>
        <translation>10&#xa0;% est un dixième&#xa0;: %1 ÷ 10 = %2.</translation>
    </message>
    <message>
        <source>15% is 10% and 5%. 10% of %1 is %2 and 5% is half of that, %3: %2 + %3 = %4.</source>
        <translation>15&#xa0;%, c&apos;est 10&#xa0;% et 5&#xa0;%. 10&#xa0;% de %1, c&apos;est %2 et 5&#xa0;% en est la moitié, %3&#xa0;: %2 + %3 = %4.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2. 20% is two lots of 10%: %2 × 2 = %3.</source>
        <translation>10&#xa0;% est un dixième&#xa0;: %1 ÷ 10 = %2. 20&#xa0;%, c&apos;est deux fois 10&#xa0;%&#xa0;: %2 × 2 = %3.</translation>
    </message>
    <message>
        <source>25% is one quarter: %1 ÷ 4 = %2.</source>
        <translation>25&#xa0;% est un quart&#xa0;: %1 ÷ 4 = %2.</translation>
    </message>
    <message>
        <source>50% is one half: %1 ÷ 2 = %2.</source>
        <translation>50&#xa0;% est une moitié&#xa0;: %1 ÷ 2 = %2.</translation>
    </message>
    <message>
        <source>75% is three quarters: %1 ÷ 4 = %2, and %2 × 3 = %3.</source>
        <translation>75&#xa0;% font trois quarts&#xa0;: %1 ÷ 4 = %2, et %2 × 3 = %3.</translation>
    </message>
</context>
<context>
    <name>AmountsBoard</name>
    <message>
        <source>your answer</source>
        <translation>ta réponse</translation>
    </message>
    <message>
        <source>your answer, in %1</source>
        <translation>ta réponse, en %1</translation>
    </message>
    <message>
        <source>Find each amount. 10% is one tenth; 25% is one quarter.</source>
        <translation>Trouve chaque quantité. 10&#xa0;% est un dixième&#xa0;; 25&#xa0;% est un quart.</translation>
    </message>
</context>
<context>
    <name>ArrowLabel</name>
    <message>
        <source>an arrow pointing down</source>
        <translation>une flèche vers le bas</translation>
    </message>
    <message>
        <source>an arrow pointing right</source>
        <translation>une flèche vers la droite</translation>
    </message>
</context>
<context>
    <name>BarModel</name>
    <message numerus="yes">
        <source>a bar of %1 cut into %n equal box</source>
        <translation>
            <numerusform>une barre de %1 coupée en %n case égale</numerusform>
            <numerusform>une barre de %1 coupée en %n cases égales</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a bar of %1 cut into %n equal boxes</source>
        <translation>
            <numerusform>une barre de %1 coupée en %n case égale</numerusform>
            <numerusform>une barre de %1 coupée en %n cases égales</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 in each box, %n box shaded</source>
        <translation>
            <numerusform>%1, %2 dans chaque case, %n case coloriée</numerusform>
            <numerusform>%1, %2 dans chaque case, %n cases coloriées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 in each box, %n boxes shaded</source>
        <translation>
            <numerusform>%1, %2 dans chaque case, %n case coloriée</numerusform>
            <numerusform>%1, %2 dans chaque case, %n cases coloriées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 in each box</source>
        <translation>%1, %2 dans chaque case</translation>
    </message>
</context>
<context>
    <name>BetweenBoard</name>
    <message>
        <source>Write a decimal that lies between the two numbers. The number line helps.</source>
        <translation>Écris un nombre décimal entre les deux nombres. La droite graduée t&apos;aide.</translation>
    </message>
    <message>
        <source>Write a decimal between %1 and %2.</source>
        <translation>Écris un nombre décimal entre %1 et %2.</translation>
    </message>
    <message>
        <source>%1 (or any number between)</source>
        <translation>%1 (ou tout autre nombre entre les deux)</translation>
    </message>
</context>
<context>
    <name>CancelBoard</name>
    <message>
        <source>top number</source>
        <translation>nombre du haut</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>nombre du bas</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <extracomment>the fraction to cancel, before the answer boxes: &quot;eighteen 24ths equals&quot;</extracomment>
        <translation>%1 est égal à</translation>
    </message>
    <message>
        <source>Cancel each fraction to its simplest form.</source>
        <translation>Simplifie chaque fraction au maximum.</translation>
    </message>
</context>
<context>
    <name>Cancelling</name>
    <message>
        <source>Cancel %1 to its simplest form.</source>
        <translation>Simplifie la fraction %1 au maximum.</translation>
    </message>
    <message>
        <source>%1 cancels to %2: divide the top and the bottom by %3.</source>
        <translation>%1 se simplifie en %2&#xa0;: divise le haut et le bas par %3.</translation>
    </message>
    <message>
        <source>Type a top number and a bottom number first!</source>
        <translation>Écris d&apos;abord un nombre en haut et un nombre en bas&#xa0;!</translation>
    </message>
    <message>
        <source>A bottom number cannot be 0.</source>
        <translation>Le nombre du bas ne peut pas être 0.</translation>
    </message>
    <message>
        <source>%1 is the fraction to cancel: divide its top and its bottom by the same number.</source>
        <translation>%1 est la fraction à simplifier&#xa0;: divise le haut et le bas par un même nombre.</translation>
    </message>
    <message>
        <source>%1 is equal to %2, but it can be cancelled further.</source>
        <translation>%1 est égal à %2, mais on peut encore simplifier.</translation>
    </message>
    <message>
        <source>The highest common factor of %1 and %2 is %3.</source>
        <translation>Le plus grand diviseur commun de %1 et de %2 est %3.</translation>
    </message>
</context>
<context>
    <name>ChainBoard</name>
    <message>
        <source>missing number</source>
        <translation>nombre manquant</translation>
    </message>
    <message>
        <source>bottom number of fraction %1</source>
        <extracomment>an answer box: &quot;top number of fraction 2&quot;</extracomment>
        <translation>nombre du bas de la fraction %1</translation>
    </message>
    <message>
        <source>top number of fraction %1</source>
        <translation>nombre du haut de la fraction %1</translation>
    </message>
    <message>
        <source>Write the missing numbers so that every fraction in the chain is equal.</source>
        <translation>Écris les nombres manquants pour que toutes les fractions de la chaîne soient égales.</translation>
    </message>
</context>
<context>
    <name>ChoiceBoard</name>
    <message>
        <source>Ring the fraction that is equal to the one in the question.</source>
        <translation>Entoure la fraction qui est égale à celle de la question.</translation>
    </message>
</context>
<context>
    <name>ChoiceCards</name>
    <message>
        <source>answer cards</source>
        <translation>cartes réponses</translation>
    </message>
    <message>
        <source>card %1: %2</source>
        <translation>carte %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the right answer</source>
        <translation>la bonne réponse</translation>
    </message>
    <message>
        <source>not the right answer</source>
        <translation>pas la bonne réponse</translation>
    </message>
</context>
<context>
    <name>CompareBoard</name>
    <message>
        <source>Write &lt;, = or &gt; in the box between the two fractions.</source>
        <translation>Écris &lt;, = ou &gt; dans la case entre les deux fractions.</translation>
    </message>
    <message>
        <source>Compare %1 and %2.</source>
        <translation>Compare %1 et %2.</translation>
    </message>
</context>
<context>
    <name>CompareFractions</name>
    <message>
        <source>%1 is equal to %2: multiply the top and the bottom of %3 by %4 to make %5.</source>
        <translation>%1 est égal à %2&#xa0;: multiplie le nombre du haut et le nombre du bas de %3 par %4 pour obtenir %5.</translation>
    </message>
    <message>
        <source>%1 is less than %2: both are counted in %3, and %4 is less than %5.</source>
        <translation>%1 est plus petit que %2&#xa0;: les deux se comptent en %3, et %4 est plus petit que %5.</translation>
    </message>
    <message>
        <source>%1 is less than %2: %3 are smaller pieces than %4.</source>
        <translation>%1 est plus petit que %2&#xa0;: les %3 sont des parts plus petites que les %4.</translation>
    </message>
    <message>
        <source>%1 is more than %2: both are counted in %3, and %4 is more than %5.</source>
        <translation>%1 est plus grand que %2&#xa0;: les deux se comptent en %3, et %4 est plus grand que %5.</translation>
    </message>
    <message>
        <source>%1 is more than %2: %3 are bigger pieces than %4.</source>
        <translation>%1 est plus grand que %2&#xa0;: les %3 sont des parts plus grandes que les %4.</translation>
    </message>
    <message>
        <source>Is %1 less than, equal to or more than %2?</source>
        <translation>%1 est-il plus petit que, égal à ou plus grand que %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 is less than %2.</source>
        <translation>%1 est plus petit que %2.</translation>
    </message>
    <message>
        <source>%1 is equal to %2.</source>
        <translation>%1 est égal à %2.</translation>
    </message>
    <message>
        <source>%1 is more than %2.</source>
        <translation>%1 est plus grand que %2.</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>est plus petit que</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>est égal à</translation>
    </message>
    <message>
        <source>is more than</source>
        <translation>est plus grand que</translation>
    </message>
    <message>
        <source>Choose one of the three cards first!</source>
        <translation>Choisis d&apos;abord une des trois cartes&#xa0;!</translation>
    </message>
    <message>
        <source>Both bars are the same length. Which has more shaded: %1 or %2?</source>
        <translation>Les deux barres ont la même longueur. Laquelle est la plus coloriée&#xa0;: %1 ou %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
</context>
<context>
    <name>DecimalBoard</name>
    <message>
        <source>your answer</source>
        <translation>ta réponse</translation>
    </message>
</context>
<context>
    <name>DecimalsBetween</name>
    <message>
        <source>Type a decimal between %1 and %2.</source>
        <translation>Tape un nombre décimal entre %1 et %2.</translation>
    </message>
    <message>
        <source>%1 is between %2 and %3.</source>
        <translation>%1 est entre %2 et %3.</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3. Try %4.</source>
        <translation>%1 n&apos;est pas entre %2 et %3. Essaie %4.</translation>
    </message>
    <message>
        <source>Write them with one more place: %1 and %2. Any of %3 to %4 lies between.</source>
        <translation>Écris-les avec un chiffre de plus après le point&#xa0;: %1 et %2. Tous les nombres de %3 à %4 sont entre les deux.</translation>
    </message>
</context>
<context>
    <name>Digits</name>
    <message>
        <source>What is the value of the %1?</source>
        <translation>Quelle est la valeur du %1&#xa0;?</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The %1 in %2 is %3.</source>
        <translation>Le %1 de %2 vaut %3.</translation>
    </message>
    <message>
        <source>Choose a card first!</source>
        <translation>Choisis d&apos;abord une carte&#xa0;!</translation>
    </message>
    <message>
        <source>Look at %1 in its place-value columns: the head of the column the %2 stands in names its value.</source>
        <translation>Regarde %1 dans le tableau de numération&#xa0;: le titre de la colonne où se trouve le %2 donne sa valeur.</translation>
    </message>
</context>
<context>
    <name>DigitsBoard</name>
    <message>
        <source>Write the value of the digit: 3 tenths (0.3).</source>
        <translation>Écris la valeur du chiffre&#xa0;: 3 dixièmes (0.3).</translation>
    </message>
    <message>
        <source>What is the value of the %1 in %2?</source>
        <translation>Quelle est la valeur du %1 dans %2&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Equivalent</name>
    <message>
        <source>%1 equals how many %2?</source>
        <translation>%1 égale combien de %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 equals %2 out of how many?</source>
        <translation>%1 égale %2 sur combien&#xa0;?</translation>
    </message>
    <message>
        <source>How many %1 equal %2?</source>
        <translation>Combien de %1 égalent %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 out of how many equals %2?</source>
        <translation>%1 sur combien égale %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 is equal to %2.</source>
        <translation>%1 est égal à %2.</translation>
    </message>
    <message>
        <source>Type the missing number in the box first!</source>
        <translation>Écris d&apos;abord le nombre manquant dans la case&#xa0;!</translation>
    </message>
    <message>
        <source>The missing number is never 0: look at the fractions again.</source>
        <translation>Le nombre manquant n&apos;est jamais 0&#xa0;: regarde encore les fractions.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the top is multiplied by %3 too: %4 × %3 = %5.</source>
        <translation>%1 ÷ %2 = %3, donc le nombre du haut est aussi multiplié par %3&#xa0;: %4 × %3 = %5.</translation>
    </message>
    <message>
        <source>%1 × %2 = %3, so the top is multiplied by %2 too: %4 × %2 = %5.</source>
        <translation>%1 × %2 = %3, donc le nombre du haut est aussi multiplié par %2&#xa0;: %4 × %2 = %5.</translation>
    </message>
    <message>
        <source>%1 × %2 = %3, so the bottom is multiplied by %2 too: %4 × %2 = %5.</source>
        <translation>%1 × %2 = %3, donc le nombre du bas est aussi multiplié par %2&#xa0;: %4 × %2 = %5.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the top is divided by %2 too: %4 ÷ %2 = %5.</source>
        <translation>%1 ÷ %2 = %3, donc le nombre du haut est aussi divisé par %2&#xa0;: %4 ÷ %2 = %5.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the bottom is divided by %2 too: %4 ÷ %2 = %5.</source>
        <translation>%1 ÷ %2 = %3, donc le nombre du bas est aussi divisé par %2&#xa0;: %4 ÷ %2 = %5.</translation>
    </message>
    <message>
        <source>Which fraction is equal to %1?</source>
        <translation>Quelle fraction est égale à %1&#xa0;?</translation>
    </message>
    <message>
        <source>Choose one of the cards first!</source>
        <translation>Choisis d&apos;abord une des cartes&#xa0;!</translation>
    </message>
    <message>
        <source>%1 is not equal to %2: %3 is.</source>
        <translation>%1 n&apos;est pas égal à %2&#xa0;: %3 l&apos;est.</translation>
    </message>
    <message>
        <source>Multiply the top and the bottom by the same number: %1 × %2 = %3 and %4 × %2 = %5.</source>
        <translation>Multiplie le nombre du haut et celui du bas par le même nombre&#xa0;: %1 × %2 = %3 et %4 × %2 = %5.</translation>
    </message>
</context>
<context>
    <name>EquivalentChain</name>
    <message>
        <source>Fill in the missing numbers so that the fractions are equal.</source>
        <translation>Écris les nombres manquants pour que les fractions soient égales.</translation>
    </message>
    <message>
        <source>how many %1</source>
        <translation>combien de %1</translation>
    </message>
    <message>
        <source>%1 over what number</source>
        <translation>%1 sur quel nombre</translation>
    </message>
    <message>
        <source>%1 equals %2, equals %3, equals %4</source>
        <translation>%1 est égal à %2, égal à %3, égal à %4</translation>
    </message>
    <message>
        <source>Fill in every box first!</source>
        <translation>Remplis d&apos;abord toutes les cases&#xa0;!</translation>
    </message>
    <message>
        <source>A bottom number cannot be 0.</source>
        <translation>Le nombre du bas ne peut pas être 0.</translation>
    </message>
    <message>
        <source>Every fraction in the chain is %1 with top and bottom multiplied by the same number: × %2, × %3, × %4.</source>
        <translation>Chaque fraction de la chaîne est %1, haut et bas multipliés par le même nombre&#xa0;: × %2, × %3, × %4.</translation>
    </message>
</context>
<context>
    <name>FocusRing</name>
    <message>
        <source>Keyboard focus</source>
        <translation>Focus du clavier</translation>
    </message>
</context>
<context>
    <name>Form1</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>  Secondary School version</source>
        <translation>  Version collège</translation>
    </message>
    <message>
        <source>  Primary School version</source>
        <translation>  Version école primaire</translation>
    </message>
    <message>
        <source>  Remove option to play sound</source>
        <translation>  Retirer le choix du son</translation>
    </message>
    <message>
        <source>Please choose the version of Partitude that you require</source>
        <translation>Veuillez choisir la version de Partitude souhaitée</translation>
    </message>
    <message>
        <source>Keep these choices and go on to choose your year</source>
        <translation>Garder ces choix et passer au choix de la classe</translation>
    </message>
    <message>
        <source>Partitude cannot save your choices in the folder:
%1

They will hold until Partitude is closed. To keep them, start Partitude with --settings DIR to choose a folder it can write to.</source>
        <translation>Partitude ne peut pas enregistrer tes choix dans le dossier&#xa0;:
%1

Ils valent jusqu&apos;à la fermeture de Partitude. Pour les garder, lance Partitude avec --settings DOSSIER pour choisir un dossier où il peut écrire.</translation>
    </message>
</context>
<context>
    <name>FractionOf</name>
    <message>
        <source>What is %1 of %2?</source>
        <translation>Combien font %1 de %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 de %2, c&apos;est %3.</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Écris d&apos;abord ta réponse dans la case&#xa0;!</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the bar again.</source>
        <translation>0 n&apos;est pas la réponse&#xa0;: regarde encore la barre.</translation>
    </message>
    <message>
        <source>To find %1 of %2, share %2 into %3 equal boxes: %2 ÷ %3 = %4.</source>
        <translation>Pour trouver %1 de %2, partage %2 en %3 cases égales&#xa0;: %2 ÷ %3 = %4.</translation>
    </message>
    <message>
        <source>First %1 of %2: %2 ÷ %3 = %4. Then %5 is %6 lots of %4: %7.</source>
        <translation>D&apos;abord %1 de %2&#xa0;: %2 ÷ %3 = %4. Puis %5, c&apos;est %6 fois %4&#xa0;: %7.</translation>
    </message>
</context>
<context>
    <name>FractionOfBoard</name>
    <message>
        <source>your answer</source>
        <translation>ta réponse</translation>
    </message>
    <message>
        <source>your answer: %1</source>
        <translation>ta réponse&#xa0;: %1</translation>
    </message>
    <message>
        <source>Share the number into the equal boxes of the bar.</source>
        <translation>Partage le nombre dans les cases égales de la barre.</translation>
    </message>
</context>
<context>
    <name>FractionWall</name>
    <message>
        <source>1 whole</source>
        <translation>1 unité</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a count of bricks and their name: 8 eighths</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a row of %1, none shaded</source>
        <translation>une rangée de %1, rien en couleur</translation>
    </message>
    <message>
        <source>a row of %1, %2 shaded</source>
        <translation>une rangée de %1 dont %2 en couleur</translation>
    </message>
    <message>
        <source>an empty fraction wall</source>
        <translation>un mur de fractions vide</translation>
    </message>
</context>
<context>
    <name>Fractions</name>
    <message>
        <source>zero</source>
        <translation>zéro</translation>
    </message>
    <message>
        <source>one</source>
        <translation>un</translation>
    </message>
    <message>
        <source>two</source>
        <translation>deux</translation>
    </message>
    <message>
        <source>three</source>
        <translation>trois</translation>
    </message>
    <message>
        <source>four</source>
        <translation>quatre</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinq</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>sept</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>huit</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>neuf</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>dix</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>onze</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>douze</translation>
    </message>
    <message>
        <source>thirteen</source>
        <translation>treize</translation>
    </message>
    <message>
        <source>fourteen</source>
        <translation>quatorze</translation>
    </message>
    <message>
        <source>fifteen</source>
        <translation>quinze</translation>
    </message>
    <message>
        <source>sixteen</source>
        <translation>seize</translation>
    </message>
    <message>
        <source>seventeen</source>
        <translation>dix-sept</translation>
    </message>
    <message>
        <source>eighteen</source>
        <translation>dix-huit</translation>
    </message>
    <message>
        <source>nineteen</source>
        <translation>dix-neuf</translation>
    </message>
    <message>
        <source>twenty</source>
        <translation>vingt</translation>
    </message>
    <message>
        <source>%1th</source>
        <translation>%1e</translation>
    </message>
    <message>
        <source>%1ths</source>
        <translation>%1es</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>a mixed number: five and two thirds</comment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>halves</source>
        <translation>demis</translation>
    </message>
    <message>
        <source>thirds</source>
        <translation>tiers</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>quarts</translation>
    </message>
    <message>
        <source>fifths</source>
        <translation>cinquièmes</translation>
    </message>
    <message>
        <source>sixths</source>
        <translation>sixièmes</translation>
    </message>
    <message>
        <source>sevenths</source>
        <translation>septièmes</translation>
    </message>
    <message>
        <source>eighths</source>
        <translation>huitièmes</translation>
    </message>
    <message>
        <source>ninths</source>
        <translation>neuvièmes</translation>
    </message>
    <message>
        <source>tenths</source>
        <translation>dixièmes</translation>
    </message>
    <message>
        <source>half</source>
        <translation>demi</translation>
    </message>
    <message>
        <source>third</source>
        <translation>tiers</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>quart</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>cinquième</translation>
    </message>
    <message>
        <source>sixth</source>
        <translation>sixième</translation>
    </message>
    <message>
        <source>seventh</source>
        <translation>septième</translation>
    </message>
    <message>
        <source>eighth</source>
        <translation>huitième</translation>
    </message>
    <message>
        <source>ninth</source>
        <translation>neuvième</translation>
    </message>
    <message>
        <source>tenth</source>
        <translation>dixième</translation>
    </message>
    <message>
        <source>one half</source>
        <translation>un demi</translation>
    </message>
    <message numerus="yes">
        <source>%1 halves</source>
        <translation>
            <numerusform>%1 demi</numerusform>
            <numerusform>%1 demis</numerusform>
        </translation>
    </message>
    <message>
        <source>one third</source>
        <translation>un tiers</translation>
    </message>
    <message numerus="yes">
        <source>%1 thirds</source>
        <translation>
            <numerusform>%1 tiers</numerusform>
            <numerusform>%1 tiers</numerusform>
        </translation>
    </message>
    <message>
        <source>one quarter</source>
        <translation>un quart</translation>
    </message>
    <message numerus="yes">
        <source>%1 quarters</source>
        <translation>
            <numerusform>%1 quart</numerusform>
            <numerusform>%1 quarts</numerusform>
        </translation>
    </message>
    <message>
        <source>one fifth</source>
        <translation>un cinquième</translation>
    </message>
    <message numerus="yes">
        <source>%1 fifths</source>
        <translation>
            <numerusform>%1 cinquième</numerusform>
            <numerusform>%1 cinquièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>one sixth</source>
        <translation>un sixième</translation>
    </message>
    <message numerus="yes">
        <source>%1 sixths</source>
        <translation>
            <numerusform>%1 sixième</numerusform>
            <numerusform>%1 sixièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>one seventh</source>
        <translation>un septième</translation>
    </message>
    <message numerus="yes">
        <source>%1 sevenths</source>
        <translation>
            <numerusform>%1 septième</numerusform>
            <numerusform>%1 septièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>one eighth</source>
        <translation>un huitième</translation>
    </message>
    <message numerus="yes">
        <source>%1 eighths</source>
        <translation>
            <numerusform>%1 huitième</numerusform>
            <numerusform>%1 huitièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>one ninth</source>
        <translation>un neuvième</translation>
    </message>
    <message numerus="yes">
        <source>%1 ninths</source>
        <translation>
            <numerusform>%1 neuvième</numerusform>
            <numerusform>%1 neuvièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>one tenth</source>
        <translation>un dixième</translation>
    </message>
    <message numerus="yes">
        <source>%1 tenths</source>
        <translation>
            <numerusform>%1 dixième</numerusform>
            <numerusform>%1 dixièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>eleventh</source>
        <translation>onzième</translation>
    </message>
    <message>
        <source>elevenths</source>
        <translation>onzièmes</translation>
    </message>
    <message>
        <source>one eleventh</source>
        <translation>un onzième</translation>
    </message>
    <message numerus="yes">
        <source>%1 elevenths</source>
        <translation>
            <numerusform>%1 onzième</numerusform>
            <numerusform>%1 onzièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>twelfth</source>
        <translation>douzième</translation>
    </message>
    <message>
        <source>twelfths</source>
        <translation>douzièmes</translation>
    </message>
    <message>
        <source>one twelfth</source>
        <translation>un douzième</translation>
    </message>
    <message numerus="yes">
        <source>%1 twelfths</source>
        <translation>
            <numerusform>%1 douzième</numerusform>
            <numerusform>%1 douzièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>twentieth</source>
        <translation>vingtième</translation>
    </message>
    <message>
        <source>twentieths</source>
        <translation>vingtièmes</translation>
    </message>
    <message>
        <source>one twentieth</source>
        <translation>un vingtième</translation>
    </message>
    <message numerus="yes">
        <source>%1 twentieths</source>
        <translation>
            <numerusform>%1 vingtième</numerusform>
            <numerusform>%1 vingtièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>hundredth</source>
        <translation>centième</translation>
    </message>
    <message>
        <source>hundredths</source>
        <translation>centièmes</translation>
    </message>
    <message>
        <source>one hundredth</source>
        <translation>un centième</translation>
    </message>
    <message numerus="yes">
        <source>%1 hundredths</source>
        <translation>
            <numerusform>%1 centième</numerusform>
            <numerusform>%1 centièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>thousandth</source>
        <translation>millième</translation>
    </message>
    <message>
        <source>thousandths</source>
        <translation>millièmes</translation>
    </message>
    <message>
        <source>one thousandth</source>
        <translation>un millième</translation>
    </message>
    <message numerus="yes">
        <source>%1 thousandths</source>
        <translation>
            <numerusform>%1 millième</numerusform>
            <numerusform>%1 millièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1st</source>
        <translation>%1e</translation>
    </message>
    <message>
        <source>%1nd</source>
        <translation>%1e</translation>
    </message>
    <message>
        <source>%1rd</source>
        <translation>%1e</translation>
    </message>
    <message>
        <source>%1sts</source>
        <translation>%1es</translation>
    </message>
    <message>
        <source>%1nds</source>
        <translation>%1es</translation>
    </message>
    <message>
        <source>%1rds</source>
        <translation>%1es</translation>
    </message>
    <message>
        <source>one %1</source>
        <comment>one part without a name of its own: one 22nd</comment>
        <translation>un %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 %2</source>
        <comment>parts without a name of their own: five 22nds</comment>
        <translation>
            <numerusform>%1 %2</numerusform>
            <numerusform>%1 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>point %1</source>
        <comment>a decimal read aloud: point five</comment>
        <translation>point %1</translation>
    </message>
    <message>
        <source>%1 point %2</source>
        <comment>a decimal read aloud: three point four five</comment>
        <translation>%1 point %2</translation>
    </message>
</context>
<context>
    <name>Halves</name>
    <message>
        <source>Click on one half of the %1</source>
        <translation>Clique sur la moitié des %1</translation>
    </message>
    <message>
        <source>Click on one quarter of the %1</source>
        <translation>Clique sur un quart des %1</translation>
    </message>
    <message>
        <source>You chose one half of the %1</source>
        <translation>Tu as choisi la moitié des %1</translation>
    </message>
    <message>
        <source>You chose one quarter of the %1</source>
        <translation>Tu as choisi un quart des %1</translation>
    </message>
    <message numerus="yes">
        <source>You should have clicked on %n picture</source>
        <translation>
            <numerusform>Il fallait cliquer sur %n image</numerusform>
            <numerusform>Il fallait cliquer sur %n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You should have clicked on %n pictures</source>
        <translation>
            <numerusform>Il fallait cliquer sur %n image</numerusform>
            <numerusform>Il fallait cliquer sur %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>holly</source>
        <translation>houx</translation>
    </message>
    <message>
        <source>ducks</source>
        <translation>canards</translation>
    </message>
    <message>
        <source>suns</source>
        <translation>soleils</translation>
    </message>
    <message>
        <source>dinosaurs</source>
        <translation>dinosaures</translation>
    </message>
    <message>
        <source>spiders</source>
        <translation>araignées</translation>
    </message>
    <message>
        <source>gorillas</source>
        <translation>gorilles</translation>
    </message>
    <message>
        <source>holly leaf</source>
        <translation>feuille de houx</translation>
    </message>
    <message>
        <source>duck</source>
        <translation>canard</translation>
    </message>
    <message>
        <source>sun</source>
        <translation>soleil</translation>
    </message>
    <message>
        <source>dinosaur</source>
        <translation>dinosaure</translation>
    </message>
    <message>
        <source>spider</source>
        <translation>araignée</translation>
    </message>
    <message>
        <source>gorilla</source>
        <translation>gorille</translation>
    </message>
</context>
<context>
    <name>HalvesOfNumbers</name>
    <message>
        <source>What is %1 of %2?</source>
        <translation>Combien font %1 de %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 de %2, c&apos;est %3.</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Écris d&apos;abord ta réponse dans la case&#xa0;!</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the pictures again.</source>
        <translation>0 n&apos;est pas la réponse&#xa0;: regarde encore les images.</translation>
    </message>
    <message>
        <source>Share the %1 %2 into %3 equal groups: %4 in each group.</source>
        <translation>Partage les %1 %2 en %3 groupes égaux&#xa0;: %4 dans chaque groupe.</translation>
    </message>
    <message>
        <source>%1 is 1 group: %2 %3.</source>
        <translation>%1, c&apos;est 1 groupe&#xa0;: %2 %3.</translation>
    </message>
    <message>
        <source>%1 is %4 groups: %2 %3.</source>
        <translation>%1, c&apos;est %4 groupes&#xa0;: %2 %3.</translation>
    </message>
</context>
<context>
    <name>HalvesShapes</name>
    <message numerus="yes">
        <source>%n part</source>
        <translation>
            <numerusform>%n part</numerusform>
            <numerusform>%n parts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n part</numerusform>
            <numerusform>%n parts</numerusform>
        </translation>
    </message>
    <message>
        <source>Colour %1 of the %2.</source>
        <translation>Colorie %1 du %2.</translation>
    </message>
    <message>
        <source>You must colour some parts!</source>
        <translation>Tu dois colorier des parts&#xa0;!</translation>
    </message>
    <message>
        <source>You coloured %1 of the %2.</source>
        <translation>Tu as colorié %1 du %2.</translation>
    </message>
    <message>
        <source>Two quarters is the same as one half.</source>
        <translation>Deux quarts, c&apos;est la même chose qu&apos;un demi.</translation>
    </message>
    <message>
        <source>You coloured %1 of the %2 parts: that is %3. %4 is %5.</source>
        <translation>Tu as colorié %1 des %2 parts&#xa0;: cela fait %3. %4, c&apos;est %5.</translation>
    </message>
    <message>
        <source>The %1 is cut into %2 equal parts.</source>
        <translation>Le %1 est coupé en %2 parts égales.</translation>
    </message>
    <message>
        <source>%1 is %2 of them.</source>
        <translation>%1, c&apos;est %2 de ces parts.</translation>
    </message>
    <message>
        <source>You have not coloured any yet.</source>
        <translation>Tu n&apos;en as encore colorié aucune.</translation>
    </message>
    <message>
        <source>You have coloured %1.</source>
        <translation>Tu en as colorié %1.</translation>
    </message>
</context>
<context>
    <name>HowMany</name>
    <message>
        <source>each one is 10 tenths</source>
        <translation>chaque unité vaut 10 dixièmes</translation>
    </message>
    <message>
        <source>each one is 100 hundredths</source>
        <translation>chaque unité vaut 100 centièmes</translation>
    </message>
    <message>
        <source>each one is 1000 thousandths</source>
        <translation>chaque unité vaut 1000 millièmes</translation>
    </message>
    <message>
        <source>each tenth is 10 hundredths</source>
        <translation>chaque dixième vaut 10 centièmes</translation>
    </message>
    <message>
        <source>each tenth is 100 thousandths</source>
        <translation>chaque dixième vaut 100 millièmes</translation>
    </message>
    <message>
        <source>each hundredth is 10 thousandths</source>
        <translation>chaque centième vaut 10 millièmes</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>How many tenths are there in %1?</source>
        <translation>Combien y a-t-il de dixièmes dans %1&#xa0;?</translation>
    </message>
    <message>
        <source>How many hundredths are there in %1?</source>
        <translation>Combien y a-t-il de centièmes dans %1&#xa0;?</translation>
    </message>
    <message>
        <source>How many thousandths are there in %1?</source>
        <translation>Combien y a-t-il de millièmes dans %1&#xa0;?</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1, c&apos;est %2.</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the number again.</source>
        <translation>0 n&apos;est pas la réponse&#xa0;: regarde encore le nombre.</translation>
    </message>
    <message>
        <source>%1 is %2, not %3: %3 is only the digit in the %4 column.</source>
        <translation>%1, c&apos;est %2, pas %3&#xa0;: %3 n&apos;est que le chiffre de la colonne des %4.</translation>
    </message>
    <message>
        <source>%1, so %2 = %3.</source>
        <translation>%1, donc %2 = %3.</translation>
    </message>
    <message>
        <source>%1, so %2 × %3 = %4.</source>
        <translation>%1, donc %2 × %3 = %4.</translation>
    </message>
</context>
<context>
    <name>HowManyBoard</name>
    <message>
        <source>your answer</source>
        <translation>ta réponse</translation>
    </message>
    <message>
        <source>Write the number in place-value columns to help you count.</source>
        <translation>Écris le nombre dans un tableau de numération pour t&apos;aider à compter.</translation>
    </message>
</context>
<context>
    <name>HundredSquare</name>
    <message>
        <source>a hundred square with %1 small squares shaded</source>
        <translation>un carré de cent avec %1 petits carrés coloriés</translation>
    </message>
</context>
<context>
    <name>KitScreen</name>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Clique sur Commencer pour rejouer... ou clique sur Sortir</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Bonne chance&#xa0;!</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Essaie de réussir 10 ou 20 questions pour gagner un diplôme.</translation>
    </message>
    <message>
        <source>Not quite. %1</source>
        <translation>Pas tout à fait. %1</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>Partitude logo</source>
        <translation>logo de Partitude</translation>
    </message>
    <message>
        <source>%1 logo</source>
        <translation>logo de %1</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Mixed Numbers and Improper Fractions</source>
        <translation>Nombres mixtes et fractions plus grandes que 1</translation>
    </message>
</context>
<context>
    <name>MixedBoard</name>
    <message>
        <source>whole number</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>top number</source>
        <translation>nombre du haut</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>nombre du bas</translation>
    </message>
    <message>
        <source>0 is never the answer here.</source>
        <translation>0 n&apos;est jamais la réponse ici.</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <translation>%1 est égal à</translation>
    </message>
    <message>
        <source>%1 times %2 is %3</source>
        <translation>%1 fois %2 font %3</translation>
    </message>
    <message>
        <source>Change each improper fraction to a mixed number.</source>
        <translation>Écris chaque fraction plus grande que 1 sous forme de nombre mixte.</translation>
    </message>
    <message>
        <source>Change each mixed number to an improper fraction.</source>
        <translation>Écris chaque nombre mixte sous forme de fraction.</translation>
    </message>
    <message>
        <source>Change each improper fraction to a mixed number, and each mixed number to an improper fraction.</source>
        <translation>Écris chaque fraction plus grande que 1 sous forme de nombre mixte, et chaque nombre mixte sous forme de fraction.</translation>
    </message>
</context>
<context>
    <name>MixedQuestion</name>
    <message>
        <source>%1 and %2/%3</source>
        <comment>a mixed number: 2 and 3/4</comment>
        <translation>%1 et %2/%3</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <comment>one number is another: 11/4 is 2 and 3/4</comment>
        <translation>%1, c&apos;est %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 is %n whole one with %3 %4 left over.</source>
        <translation>
            <numerusform>%1 %2, c&apos;est %n unité et il reste %3 %4.</numerusform>
            <numerusform>%1 %2, c&apos;est %n unités et il reste %3 %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 is %n whole ones with %3 %4 left over.</source>
        <translation>
            <numerusform>%1 %2, c&apos;est %n unité et il reste %3 %4.</numerusform>
            <numerusform>%1 %2, c&apos;est %n unités et il reste %3 %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each whole number is %1 %2. You have %n whole number and %3 %4.</source>
        <translation>
            <numerusform>Chaque unité vaut %1 %2. Tu as %n unité et %3 %4.</numerusform>
            <numerusform>Chaque unité vaut %1 %2. Tu as %n unités et %3 %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each whole number is %1 %2. You have %n whole numbers and %3 %4.</source>
        <translation>
            <numerusform>Chaque unité vaut %1 %2. Tu as %n unité et %3 %4.</numerusform>
            <numerusform>Chaque unité vaut %1 %2. Tu as %n unités et %3 %4.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change %1 to a mixed number.</source>
        <translation>Écris %1 sous forme de nombre mixte.</translation>
    </message>
    <message>
        <source>Change %1 to an improper fraction.</source>
        <translation>Écris %1 sous forme de fraction.</translation>
    </message>
    <message>
        <source>Type a number in every box first!</source>
        <translation>Écris d&apos;abord un nombre dans chaque case&#xa0;!</translation>
    </message>
</context>
<context>
    <name>Module1</name>
    <message>
        <source>Check Your Answer</source>
        <translation>Vérifie ta réponse</translation>
    </message>
    <message>
        <source>Press To Start</source>
        <translation>Appuie pour commencer</translation>
    </message>
    <message>
        <source>Print A Worksheet</source>
        <translation>Imprimer une fiche</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Au revoir</translation>
    </message>
    <message>
        <source>Get Some Help</source>
        <translation>Demande de l&apos;aide</translation>
    </message>
    <message>
        <source>Well done! </source>
        <translation>Bien joué&#xa0;! </translation>
    </message>
    <message>
        <source>Good work! </source>
        <translation>Beau travail&#xa0;! </translation>
    </message>
    <message>
        <source>Cool! </source>
        <translation>Trop cool&#xa0;! </translation>
    </message>
    <message>
        <source>Smart cookie! </source>
        <translation>Petit génie&#xa0;! </translation>
    </message>
    <message>
        <source>Yes! </source>
        <translation>Oui&#xa0;! </translation>
    </message>
    <message>
        <source>Great! </source>
        <translation>Génial&#xa0;! </translation>
    </message>
    <message>
        <source>Yipee! </source>
        <translation>Youpi&#xa0;! </translation>
    </message>
    <message>
        <source>Brilliant! </source>
        <translation>Brillant&#xa0;! </translation>
    </message>
    <message>
        <source>Wicked! </source>
        <translation>Trop fort&#xa0;! </translation>
    </message>
    <message>
        <source>Wonderful! </source>
        <translation>Merveilleux&#xa0;! </translation>
    </message>
    <message>
        <source>Super! </source>
        <translation>Super&#xa0;! </translation>
    </message>
    <message>
        <source>Excellent! </source>
        <translation>Excellent&#xa0;! </translation>
    </message>
</context>
<context>
    <name>NameFraction</name>
    <message>
        <source>What fraction of the %1 are ringed?</source>
        <translation>Quelle fraction des %1 est dans un cercle&#xa0;?</translation>
    </message>
    <message>
        <source>What fraction of the %1 is shaded?</source>
        <translation>Quelle fraction du %1 est coloriée&#xa0;?</translation>
    </message>
    <message>
        <source>Type the top number and the bottom number first!</source>
        <translation>Écris d&apos;abord le nombre du haut et le nombre du bas&#xa0;!</translation>
    </message>
    <message>
        <source>The bottom number cannot be 0: count all the parts.</source>
        <translation>Le nombre du bas ne peut pas être 0&#xa0;: compte toutes les parts.</translation>
    </message>
    <message>
        <source>The top number cannot be 0: count the ringed pictures.</source>
        <translation>Le nombre du haut ne peut pas être 0&#xa0;: compte les images dans un cercle.</translation>
    </message>
    <message>
        <source>The top number cannot be 0: count the shaded parts.</source>
        <translation>Le nombre du haut ne peut pas être 0&#xa0;: compte les parts coloriées.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed.</source>
        <translation>%1 des %2 sont dans un cercle.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded.</source>
        <translation>%1 du %2 est colorié.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed: that is %3.</source>
        <translation>%1 des %2 sont dans un cercle&#xa0;: c&apos;est %3.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: that is %3.</source>
        <translation>%1 du %2 est colorié&#xa0;: c&apos;est %3.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed: %3 of the %4 %2.</source>
        <translation>%1 des %2 sont dans un cercle&#xa0;: %3 des %4 %2.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: %3 of its %4 small squares.</source>
        <translation>%1 du %2 est colorié&#xa0;: %3 de ses %4 petits carrés.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: %3 of its %4 parts.</source>
        <translation>%1 du %2 est colorié&#xa0;: %3 de ses %4 parts.</translation>
    </message>
    <message>
        <source>Each small square is 1/100; each column is 1/10.</source>
        <translation>Chaque petit carré vaut 1/100&#xa0;; chaque colonne vaut 1/10.</translation>
    </message>
    <message>
        <source>Count the shaded squares: %1.</source>
        <translation>Compte les carrés coloriés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Count all the %1: %2. That is the bottom number. Count the ringed %1: %3. That is the top number.</source>
        <translation>Compte tous les %1&#xa0;: %2. C&apos;est le nombre du bas. Compte les %1 dans un cercle&#xa0;: %3. C&apos;est le nombre du haut.</translation>
    </message>
    <message>
        <source>Count all the equal parts: %1. That is the bottom number. Count the shaded parts: %2. That is the top number.</source>
        <translation>Compte toutes les parts égales&#xa0;: %1. C&apos;est le nombre du bas. Compte les parts coloriées&#xa0;: %2. C&apos;est le nombre du haut.</translation>
    </message>
</context>
<context>
    <name>NamingBoard</name>
    <message>
        <source>top number</source>
        <translation>nombre du haut</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>nombre du bas</translation>
    </message>
    <message>
        <source>Write the fraction each picture shows: the top number over the bottom number.</source>
        <translation>Écris la fraction que montre chaque image&#xa0;: le nombre du haut sur le nombre du bas.</translation>
    </message>
</context>
<context>
    <name>NumberLine</name>
    <message>
        <source>a number line</source>
        <translation>une droite graduée</translation>
    </message>
    <message>
        <source>a number line from %1 to %2</source>
        <translation>une droite graduée de %1 à %2</translation>
    </message>
    <message>
        <source>%1, %2 to round</source>
        <translation>%1, %2 à arrondir</translation>
    </message>
    <message>
        <source>%1, %2 marked</source>
        <translation>%1, %2 marqué</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Folder holding the program&apos;s pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav).</source>
        <translation>Dossier des images et des sons du programme (ico, gif, bmp, jpg2, reward, wmf, wav).</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice.</source>
        <translation>Dossier de primary.inf et de sound.inf&#xa0;; indiquez à tous les comptes un même dossier partagé pour partager le choix.</translation>
    </message>
    <message>
        <source>Print every page to a new PDF file in DIR instead of the printer.</source>
        <translation>Imprimer chaque page dans un nouveau fichier PDF du DOSSIER au lieu de l&apos;imprimante.</translation>
    </message>
    <message>
        <source>Partitude: fractions practice and Challenges for Years 2 to 6.</source>
        <translation>Partitude&#xa0;: exercices et Défis sur les fractions, du CP au CM2.</translation>
    </message>
    <message>
        <source>Draw every screen F times its designed size (for example 1.5); without it the screens fill most of the display.</source>
        <translation>Dessine chaque écran F fois sa taille prévue (par exemple 1.5)&#xa0;; sans cette option, les écrans occupent la plus grande partie de l&apos;affichage.</translation>
    </message>
    <message>
        <source>Show every screen full screen (F11 on any screen turns it on and off).</source>
        <translation>Affiche chaque écran en plein écran (F11 sur n&apos;importe quel écran l&apos;active ou le désactive).</translation>
    </message>
    <message>
        <source>unexpected word on the command line: %1</source>
        <translation>mot inattendu sur la ligne de commande&#xa0;: %1</translation>
    </message>
    <message>
        <source>--scale needs a number such as 1.5, not &quot;%1&quot;.</source>
        <translation>--scale demande un nombre comme 1.5, pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--scale needs a number above 0, not %1.</source>
        <translation>--scale demande un nombre plus grand que 0, pas %1.</translation>
    </message>
    <message>
        <source>--scale %1 is too large: the largest is %2.</source>
        <translation>--scale %1 est trop grand&#xa0;: le plus grand possible est %2.</translation>
    </message>
    <message>
        <source>--scale %1 is too large for this display (%2 x %3): a screen would not fit on it.</source>
        <translation>--scale %1 est trop grand pour cet affichage (%2 x %3)&#xa0;: un écran n&apos;y tiendrait pas.</translation>
    </message>
</context>
<context>
    <name>PairBoard</name>
    <message>
        <source>the missing number</source>
        <translation>le nombre manquant</translation>
    </message>
    <message>
        <source>Find the missing number. Use the fraction wall to help you.</source>
        <translation>Trouve le nombre manquant. Aide-toi du mur des fractions.</translation>
    </message>
    <message>
        <source>Find the missing number in each pair of equal fractions.</source>
        <translation>Trouve le nombre manquant dans chaque paire de fractions égales.</translation>
    </message>
</context>
<context>
    <name>PartsOfSet</name>
    <message>
        <source>Click on %1 of the %2.</source>
        <translation>Clique sur %1 des %2.</translation>
    </message>
    <message>
        <source>You chose %1 of the %2.</source>
        <translation>Tu as choisi %1 des %2.</translation>
    </message>
    <message>
        <source>Ring %1 of the %2.</source>
        <translation>Entoure %1 des %2.</translation>
    </message>
    <message>
        <source>%1 of the %2 %3</source>
        <translation>%1 des %2 %3</translation>
    </message>
    <message>
        <source>You must choose some pictures!</source>
        <translation>Tu dois choisir des images&#xa0;!</translation>
    </message>
    <message>
        <source>%1 %2 in %3 equal groups is %4 in each group.</source>
        <translation>%1 %2 en %3 groupes égaux&#xa0;: %4 par groupe.</translation>
    </message>
    <message>
        <source>%1 is 1 group: %2 %3.</source>
        <translation>%1, c&apos;est 1 groupe&#xa0;: %2 %3.</translation>
    </message>
    <message>
        <source>%1 is %4 groups: %2 %3.</source>
        <translation>%1, c&apos;est %4 groupes&#xa0;: %2 %3.</translation>
    </message>
    <message>
        <source>You have not chosen any yet.</source>
        <translation>Tu n&apos;en as encore choisi aucune.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is not enough yet.</source>
        <translation>Tu en as choisi %1&#xa0;: ce n&apos;est pas encore assez.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is too many.</source>
        <translation>Tu en as choisi %1&#xa0;: c&apos;est trop.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is just right!</source>
        <translation>Tu en as choisi %1&#xa0;: c&apos;est exactement ça&#xa0;!</translation>
    </message>
</context>
<context>
    <name>PartsOfSetBoard</name>
    <message>
        <source>Share the pictures into equal groups, then ring the ones asked for.</source>
        <translation>Partage les images en groupes égaux, puis entoure celles qui sont demandées.</translation>
    </message>
</context>
<context>
    <name>PictureCell</name>
    <message>
        <source>Click to choose this picture; click again to leave it out</source>
        <translation>Clique pour choisir cette image&#xa0;; clique encore pour la retirer</translation>
    </message>
    <message>
        <source>%1 %2 of %3, chosen</source>
        <translation>%1 %2 sur %3, dans ton choix</translation>
    </message>
    <message>
        <source>%1 %2 of %3, not chosen</source>
        <translation>%1 %2 sur %3, pas dans ton choix</translation>
    </message>
</context>
<context>
    <name>PictureRows</name>
    <message numerus="yes">
        <source>%1 in %n group of %2</source>
        <translation>
            <numerusform>%1 en %n groupe de %2</numerusform>
            <numerusform>%1 en %n groupes de %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n groups of %2</source>
        <translation>
            <numerusform>%1 en %n groupe de %2</numerusform>
            <numerusform>%1 en %n groupes de %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n group marked</source>
        <translation>
            <numerusform>%1, %n groupe marqué</numerusform>
            <numerusform>%1, %n groupes marqués</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n groups marked</source>
        <translation>
            <numerusform>%1, %n groupe marqué</numerusform>
            <numerusform>%1, %n groupes marqués</numerusform>
        </translation>
    </message>
    <message>
        <source>no pictures yet</source>
        <translation>pas encore d&apos;images</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n ringed</source>
        <translation>
            <numerusform>%1, %n dans un cercle</numerusform>
            <numerusform>%1, %n dans un cercle</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>Partitude cannot go on: the picture file &quot;%1&quot; is missing or cannot be read.

Partitude looks for its pictures in the folder:
%2

To use pictures in another folder, start Partitude with %3 and that folder.</source>
        <translation>Partitude ne peut pas continuer&#xa0;: le fichier d&apos;image «&#xa0;%1&#xa0;» est absent ou illisible.

Partitude cherche ses images dans le dossier&#xa0;:
%2

Pour prendre les images d&apos;un autre dossier, lancez Partitude avec %3 suivi de ce dossier.</translation>
    </message>
    <message>
        <source>Partitude cannot go on: the picture file &quot;%1&quot; cannot be read: %2.

Partitude looks for its pictures in the folder:
%3

To use pictures in another folder, start Partitude with %4 and that folder.</source>
        <translation>Partitude ne peut pas continuer&#xa0;: le fichier d&apos;image «&#xa0;%1&#xa0;» est illisible&#xa0;: %2.

Partitude cherche ses images dans le dossier&#xa0;:
%3

Pour prendre les images d&apos;un autre dossier, lancez Partitude avec %4 suivi de ce dossier.</translation>
    </message>
</context>
<context>
    <name>PicturesBoard</name>
    <message>
        <source>your answer</source>
        <translation>ta réponse</translation>
    </message>
    <message>
        <source>Share the pictures into equal groups to find the answer.</source>
        <translation>Partage les images en groupes égaux pour trouver la réponse.</translation>
    </message>
</context>
<context>
    <name>PlaceValueHeads</name>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
    <message>
        <source>Column heads: units, tenths, hundredths, thousandths</source>
        <translation>Titres des colonnes&#xa0;: unités, dixièmes, centièmes, millièmes</translation>
    </message>
</context>
<context>
    <name>PlaceValueTable</name>
    <message>
        <source>no number yet</source>
        <translation>pas encore de nombre</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>le nombre %1</translation>
    </message>
    <message>
        <source>%1 in place-value columns: %2</source>
        <translation>%1 dans le tableau de numération&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message numerus="yes">
        <source>%n ten</source>
        <translation>
            <numerusform>%n dizaine</numerusform>
            <numerusform>%n dizaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tens</source>
        <translation>
            <numerusform>%n dizaine</numerusform>
            <numerusform>%n dizaines</numerusform>
        </translation>
    </message>
    <message>
        <source>tens</source>
        <translation>dizaines</translation>
    </message>
    <message numerus="yes">
        <source>%n one</source>
        <translation>
            <numerusform>%n unité</numerusform>
            <numerusform>%n unités</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ones</source>
        <translation>
            <numerusform>%n unité</numerusform>
            <numerusform>%n unités</numerusform>
        </translation>
    </message>
    <message>
        <source>ones</source>
        <translation>unités</translation>
    </message>
    <message numerus="yes">
        <source>%n tenth</source>
        <translation>
            <numerusform>%n dixième</numerusform>
            <numerusform>%n dixièmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tenths</source>
        <translation>
            <numerusform>%n dixième</numerusform>
            <numerusform>%n dixièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>tenths</source>
        <translation>dixièmes</translation>
    </message>
    <message numerus="yes">
        <source>%n hundredth</source>
        <translation>
            <numerusform>%n centième</numerusform>
            <numerusform>%n centièmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hundredths</source>
        <translation>
            <numerusform>%n centième</numerusform>
            <numerusform>%n centièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>hundredths</source>
        <translation>centièmes</translation>
    </message>
    <message numerus="yes">
        <source>%n thousandth</source>
        <translation>
            <numerusform>%n millième</numerusform>
            <numerusform>%n millièmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thousandths</source>
        <translation>
            <numerusform>%n millième</numerusform>
            <numerusform>%n millièmes</numerusform>
        </translation>
    </message>
    <message>
        <source>thousandths</source>
        <translation>millièmes</translation>
    </message>
    <message>
        <source>%1 point %2</source>
        <translation>%1 virgule %2</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Tape d&apos;abord ta réponse dans la case&#xa0;!</translation>
    </message>
    <message>
        <source>Write your number without a 0 in front.</source>
        <translation>Écris ton nombre sans 0 devant.</translation>
    </message>
    <message>
        <source>That number is too long.</source>
        <translation>Ce nombre est trop long.</translation>
    </message>
</context>
<context>
    <name>Reward</name>
    <message>
        <source>You have been unsuccessful in the Challenge.</source>
        <translation>Tu n&apos;as pas réussi le Défi.</translation>
    </message>
    <message>
        <source>The Challenge will begin again.</source>
        <translation>Le Défi va recommencer.</translation>
    </message>
    <message>
        <source>stars</source>
        <translation>étoiles</translation>
    </message>
</context>
<context>
    <name>Rounding</name>
    <message>
        <source>Round %1 to the nearest whole number.</source>
        <translation>Arrondis %1 au nombre entier le plus proche.</translation>
    </message>
    <message>
        <source>Round %1 to one decimal place.</source>
        <translation>Arrondis %1 à une décimale.</translation>
    </message>
    <message>
        <source>Round %1 to two decimal places.</source>
        <translation>Arrondis %1 à deux décimales.</translation>
    </message>
    <message>
        <source>%1 rounded to the nearest whole number is %2.</source>
        <translation>%1 arrondi au nombre entier le plus proche donne %2.</translation>
    </message>
    <message>
        <source>%1 rounded to one decimal place is %2.</source>
        <translation>%1 arrondi à une décimale donne %2.</translation>
    </message>
    <message>
        <source>%1 rounded to two decimal places is %2.</source>
        <translation>%1 arrondi à deux décimales donne %2.</translation>
    </message>
    <message>
        <source>Look at the digit after the place you round to: %1 is 5 or more, so round up to %2.</source>
        <translation>Regarde le chiffre après le rang où tu arrondis&#xa0;: %1 est 5 ou plus, alors arrondis au-dessus, à %2.</translation>
    </message>
    <message>
        <source>Look at the digit after the place you round to: %1 is less than 5, so round down to %2.</source>
        <translation>Regarde le chiffre après le rang où tu arrondis&#xa0;: %1 est moins que 5, alors arrondis au-dessous, à %2.</translation>
    </message>
</context>
<context>
    <name>RoundingBoard</name>
    <message>
        <source>Round each number as it asks. The number line shows the two numbers it lies between.</source>
        <translation>Arrondis chaque nombre comme demandé. La droite graduée montre les deux nombres qui l&apos;entourent.</translation>
    </message>
</context>
<context>
    <name>ShapeBoard</name>
    <message>
        <source>part %1 of %2, %3</source>
        <translation>part %1 sur %2, %3</translation>
    </message>
    <message>
        <source>coloured</source>
        <translation>coloriée</translation>
    </message>
    <message>
        <source>not coloured</source>
        <translation>pas coloriée</translation>
    </message>
    <message numerus="yes">
        <source>a %1 cut into %2 equal parts, %n coloured</source>
        <translation>
            <numerusform>un %1 coupé en %2 parts égales, %n coloriée</numerusform>
            <numerusform>un %1 coupé en %2 parts égales, %n coloriées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a %1 cut into %2 equal parts, %n shaded</source>
        <translation>
            <numerusform>un %1 coupé en %2 parts égales, %n coloriée</numerusform>
            <numerusform>un %1 coupé en %2 parts égales, %n coloriées</numerusform>
        </translation>
    </message>
    <message>
        <source>shaded</source>
        <translation>coloriée</translation>
    </message>
    <message>
        <source>not shaded</source>
        <translation>pas coloriée</translation>
    </message>
</context>
<context>
    <name>ShapeKind</name>
    <message>
        <source>circle</source>
        <translation>cercle</translation>
    </message>
    <message>
        <source>strip</source>
        <translation>ruban</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rectangle</translation>
    </message>
    <message>
        <source>square</source>
        <translation>carré</translation>
    </message>
</context>
<context>
    <name>ShapesBoard</name>
    <message>
        <source>Colour the part of each shape that the question asks for.</source>
        <translation>Colorie dans chaque forme la part que demande la question.</translation>
    </message>
    <message>
        <source>%1 of the %2 parts</source>
        <translation>%1 des %2 parts</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Partitude needs a display and found none; without one, run it under Xvfb: %1
</source>
        <translation>Partitude a besoin d&apos;un écran et n&apos;en a trouvé aucun&#xa0;; sans écran, lancez-le sous Xvfb&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Partitude did not reach its title screen.
</source>
        <translation>Partitude n&apos;a pas atteint son écran de titre.
</translation>
    </message>
    <message>
        <source>Partitude reached its title screen (%1).
</source>
        <translation>Partitude a atteint son écran de titre (%1).
</translation>
    </message>
    <message>
        <source>Its sound module cannot be loaded: it will be silent.
</source>
        <translation>Son module de sons ne peut pas être chargé : il restera muet.
</translation>
    </message>
    <message>
        <source>Its sounds play through %1.
</source>
        <translation>Ses sons passent par %1.
</translation>
    </message>
</context>
<context>
    <name>Titlefrm</name>
    <message>
        <source>Exit</source>
        <translation>Sortir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Made by the Partitude team</source>
        <translation>Créé par l&apos;équipe Partitude</translation>
    </message>
    <message>
        <source>Go on to choose your year</source>
        <translation>Continuer pour choisir ta classe</translation>
    </message>
    <message>
        <source>Close Partitude</source>
        <translation>Fermer Partitude</translation>
    </message>
    <message>
        <source>Partitude title picture</source>
        <translation>image titre de Partitude</translation>
    </message>
</context>
<context>
    <name>TypedDecimal</name>
    <message>
        <source>Type a point for a decimal, not a comma.</source>
        <translation>Tape un point pour un nombre décimal, pas une virgule.</translation>
    </message>
    <message>
        <source>Type only digits and a point.</source>
        <translation>Tape seulement des chiffres et un point.</translation>
    </message>
    <message>
        <source>Type a number in the box first!</source>
        <translation>Écris d&apos;abord un nombre dans la case&#xa0;!</translation>
    </message>
    <message>
        <source>A number has only one point.</source>
        <translation>Un nombre n&apos;a qu&apos;un seul point.</translation>
    </message>
    <message>
        <source>That number is too long.</source>
        <translation>Ce nombre est trop long.</translation>
    </message>
    <message>
        <source>Write the number without a 0 in front.</source>
        <translation>Écris le nombre sans 0 devant.</translation>
    </message>
</context>
<context>
    <name>Welldone</name>
    <message>
        <source>Excellent!</source>
        <translation>Excellent&#xa0;!</translation>
    </message>
    <message>
        <source>Congratulations!!!</source>
        <translation>Félicitations&#xa0;!!!</translation>
    </message>
    <message>
        <source>you have completed the work successfully</source>
        <translation>tu as réussi ton travail</translation>
    </message>
    <message>
        <source>you have risen to the Challenge</source>
        <translation>tu as relevé le Défi</translation>
    </message>
    <message>
        <source>en_GB</source>
        <extracomment>The locale whose month names and date order the certificate uses.</extracomment>
        <translation>fr_FR</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>There was a problem printing to your printer.</source>
        <translation>Il y a eu un problème d&apos;impression avec ton imprimante.</translation>
    </message>
    <message>
        <source>Excellent work you have completed this task successfully</source>
        <translation>Excellent travail, tu as réussi cette activité</translation>
    </message>
    <message>
        <source>Enter your name in the box above before printing your certificate</source>
        <translation>Écris ton nom dans la case au-dessus avant d&apos;imprimer ton diplôme</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Imprimer le diplôme</translation>
    </message>
    <message>
        <source>Well Done!</source>
        <translation>Bravo&#xa0;!</translation>
    </message>
    <message>
        <source>your name</source>
        <translation>ton nom</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Au revoir</translation>
    </message>
    <message>
        <source>   Well Done      Well Done     Well Done     Well Done    </source>
        <translation>   Bravo      Bravo     Bravo     Bravo    </translation>
    </message>
    <message>
        <source>Congratulations!!! You have risen to the Challenge.</source>
        <translation>Félicitations&#xa0;!!! Tu as relevé le Défi.</translation>
    </message>
    <message>
        <source>Printing has been cancelled.</source>
        <translation>L&apos;impression a été annulée.</translation>
    </message>
    <message>
        <source>a picture to celebrate</source>
        <translation>une image pour fêter ça</translation>
    </message>
</context>
<context>
    <name>WorksheetForm</name>
    <message>
        <source>Print a worksheet</source>
        <translation>Imprimer une fiche</translation>
    </message>
    <message>
        <source>the worksheet</source>
        <translation>la fiche d&apos;exercices</translation>
    </message>
</context>
<context>
    <name>Worksheets</name>
    <message>
        <source>Do you really want to print?</source>
        <translation>Veux-tu vraiment imprimer&#xa0;?</translation>
    </message>
    <message>
        <source>Printing has been cancelled.</source>
        <translation>L&apos;impression a été annulée.</translation>
    </message>
    <message>
        <source>There was a problem printing to your printer.</source>
        <translation>Il y a eu un problème d&apos;impression avec ton imprimante.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Partitude - fractions for ages 6 to 11</source>
        <translation>Partitude - les fractions de 6 à 11 ans</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Réponses</translation>
    </message>
</context>
<context>
    <name>Y2fractions</name>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Clique sur Commencer pour rejouer... ou clique sur Sortir</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Bonne chance&#xa0;!</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Essaie de réussir 10 ou 20 questions pour gagner un diplôme.</translation>
    </message>
    <message>
        <source>You must choose some pictures!</source>
        <translation>Tu dois choisir des images&#xa0;!</translation>
    </message>
    <message>
        <source>You have not chosen enough!</source>
        <translation>Tu n&apos;en as pas choisi assez&#xa0;!</translation>
    </message>
    <message>
        <source>You don&apos;t need a hint, you have the right answer!</source>
        <translation>Tu n&apos;as pas besoin d&apos;indice, tu as la bonne réponse&#xa0;!</translation>
    </message>
    <message>
        <source>You have chosen too many!</source>
        <translation>Tu en as choisi trop&#xa0;!</translation>
    </message>
</context>
<context>
    <name>Y6fract3</name>
    <message>
        <source>Click the numbers, in order, starting with the smallest....</source>
        <translation>Clique sur les nombres, dans l&apos;ordre, en commençant par le plus petit....</translation>
    </message>
    <message>
        <source> The numbers are in the correct order</source>
        <translation> Les nombres sont dans le bon ordre</translation>
    </message>
    <message>
        <source>Unlucky! The correct order is:</source>
        <translation>Dommage&#xa0;! Le bon ordre est&#xa0;:</translation>
    </message>
    <message>
        <source>Incorrect!</source>
        <translation>Faux&#xa0;!</translation>
    </message>
    <message>
        <source>Place In Order</source>
        <translation>Range dans l&apos;ordre</translation>
    </message>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Clique sur Commencer pour rejouer... ou clique sur Sortir</translation>
    </message>
    <message>
        <source>Click each number starting with the smallest.</source>
        <translation>Clique sur chaque nombre en commençant par le plus petit.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Le&#x202f;+&#x202f;petit</translation>
    </message>
    <message>
        <source>Biggest</source>
        <translation>Le&#x202f;+&#x202f;grand</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Bonne chance&#xa0;!</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Essaie de réussir 10 ou 20 questions pour gagner un diplôme.</translation>
    </message>
</context>
<context>
    <name>Year</name>
    <message>
        <source>Year 5</source>
        <translation>CM1</translation>
    </message>
    <message>
        <source>Year 2</source>
        <translation>CP</translation>
    </message>
    <message>
        <source>Unit 1</source>
        <translation>Unité 1</translation>
    </message>
    <message>
        <source>Year 3</source>
        <translation>CE1</translation>
    </message>
    <message>
        <source>Unit 2</source>
        <translation>Unité 2</translation>
    </message>
    <message>
        <source>Year 4</source>
        <translation>CE2</translation>
    </message>
    <message>
        <source>Unit 3</source>
        <translation>Unité 3</translation>
    </message>
    <message>
        <source>Unit 4</source>
        <translation>Unité 4</translation>
    </message>
    <message>
        <source>Year 6</source>
        <translation>CM2</translation>
    </message>
    <message>
        <source>Unit 5</source>
        <translation>Unité 5</translation>
    </message>
    <message>
        <source>Fractions made friendly</source>
        <translation>Les fractions, c&apos;est facile</translation>
    </message>
    <message>
        <source>Visit our web site</source>
        <translation>Visite notre site web</translation>
    </message>
    <message>
        <source>Back to the start</source>
        <translation>Retour au début</translation>
    </message>
    <message>
        <source>Go back to the first screen</source>
        <translation>Revenir au premier écran</translation>
    </message>
    <message>
        <source>  Play Sound</source>
        <translation>  Activer le son</translation>
    </message>
    <message>
        <source>Unit  %1</source>
        <translation>Unité  %1</translation>
    </message>
    <message>
        <source>Open the activities of %1</source>
        <translation>Ouvrir les activités&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>orderhelp</name>
    <message>
        <source>Reading from the left :</source>
        <translation>En lisant à partir de la gauche&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is less than %2</source>
        <translation>%1 est plus petit que %2</translation>
    </message>
    <message>
        <source>since the %1 is less than the %2</source>
        <translation>car le %1 est plus petit que le %2</translation>
    </message>
    <message>
        <source>%1 is the biggest</source>
        <translation>%1 est le plus grand</translation>
    </message>
    <message>
        <source>since %1 units is bigger than %2 units</source>
        <translation>car %1 unités, c&apos;est plus que %2 unités</translation>
    </message>
    <message>
        <source>Happy to help</source>
        <translation>Un petit coup de main</translation>
    </message>
    <message>
        <source>The following decimals are in order of size starting with the smallest:</source>
        <translation>Ces nombres décimaux sont rangés du plus petit au plus grand&#xa0;:</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortir</translation>
    </message>
    <message>
        <source>Year 6 </source>
        <translation>CM2 </translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Au revoir</translation>
    </message>
</context>
<context>
    <name>y5fract4</name>
    <message>
        <source>Change to a mixed number...</source>
        <translation>Écris-la sous forme de nombre mixte...</translation>
    </message>
    <message>
        <source>Type in the correct mixed number and use the ENTER key to move on</source>
        <translation>Tape le bon nombre mixte et appuie sur ENTRÉE pour continuer</translation>
    </message>
    <message>
        <source>Change to an improper fraction...</source>
        <translation>Écris-le sous forme de fraction...</translation>
    </message>
    <message>
        <source>Type in the correct fraction and use the ENTER key to move on</source>
        <translation>Tape la bonne fraction et appuie sur ENTRÉE pour continuer</translation>
    </message>
    <message>
        <source>Incorrect! %1</source>
        <translation>Faux&#xa0;! %1</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certifcate.</source>
        <translation>Essaie de réussir 10 ou 20 questions pour gagner un diplôme.</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Bonne chance&#xa0;!</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>top number</source>
        <translation>nombre du haut</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>nombre du bas</translation>
    </message>
    <message>
        <source>Type in your mixed number and use the ENTER key to move on</source>
        <translation>Tape ton nombre mixte et appuie sur ENTRÉE pour continuer</translation>
    </message>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Clique sur Commencer pour rejouer... ou clique sur Sortir</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <translation>%1 est égal à</translation>
    </message>
    <message>
        <source>%1 and %2 equals</source>
        <translation>%1 et %2 est égal à</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 times %2 is %3</source>
        <translation>%1 fois %2 font %3</translation>
    </message>
</context>
<context>
    <name>y5fract5</name>
    <message>
        <source>Answer each question.</source>
        <translation>Réponds à chaque question.</translation>
    </message>
</context>
</TS>
