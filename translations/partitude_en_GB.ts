<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_GB">
<context>
    <name>Activities</name>
    <message>
        <source>Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers</source>
        <translation>Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers</translation>
    </message>
    <message>
        <source>Choose 10 or 20 questions. Answer them correctly to gain a certificate.</source>
        <translation>Choose 10 or 20 questions. Answer them correctly to gain a certificate.</translation>
    </message>
    <message>
        <source>Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.</source>
        <translation>Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.</translation>
    </message>
    <message>
        <source>Halves and Quarters 1</source>
        <translation>Halves and Quarters 1</translation>
    </message>
    <message>
        <source>Halves and Quarters 2</source>
        <translation>Halves and Quarters 2</translation>
    </message>
    <message>
        <source>Halves and Quarters 3</source>
        <translation>Halves and Quarters 3</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 1</source>
        <translation>Halves, Quarters, Thirds and Tenths 1</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 2</source>
        <translation>Halves, Quarters, Thirds and Tenths 2</translation>
    </message>
    <message>
        <source>Halves, Quarters, Thirds and Tenths 3</source>
        <translation>Halves, Quarters, Thirds and Tenths 3</translation>
    </message>
    <message>
        <source>Equivalent Fractions 3</source>
        <translation>Equivalent Fractions 3</translation>
    </message>
    <message>
        <source>Equivalent Fractions 2</source>
        <translation>Equivalent Fractions 2</translation>
    </message>
    <message>
        <source>Write A Fraction</source>
        <translation>Write A Fraction</translation>
    </message>
    <message>
        <source>Equivalent Fractions 1</source>
        <translation>Equivalent Fractions 1</translation>
    </message>
    <message>
        <source>More Than, Less Than</source>
        <translation>More Than, Less Than</translation>
    </message>
    <message>
        <source>Fractions of Numbers</source>
        <translation>Fractions of Numbers</translation>
    </message>
    <message>
        <source>Equivalent Fractions</source>
        <translation>Equivalent Fractions</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Cancelling</translation>
    </message>
    <message>
        <source>Mixed Numbers and Improper Fractions</source>
        <translation>Mixed Numbers and Improper Fractions</translation>
    </message>
    <message>
        <source>Partitude</source>
        <translation>Partitude</translation>
    </message>
    <message>
        <source>Mixed Numbers To Improper Fractions</source>
        <translation>Mixed Numbers To Improper Fractions</translation>
    </message>
    <message>
        <source>Improper Fractions To Mixed Numbers</source>
        <translation>Improper Fractions To Mixed Numbers</translation>
    </message>
    <message>
        <source>Decimals Between</source>
        <translation>Decimals Between</translation>
    </message>
    <message>
        <source>Place In Order</source>
        <translation>Place In Order</translation>
    </message>
    <message>
        <source>How Many?</source>
        <translation>How Many?</translation>
    </message>
    <message>
        <source>Finding Amounts</source>
        <translation>Finding Amounts</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Digits</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rounding</translation>
    </message>
</context>
<context>
    <name>ActivityForm</name>
    <message>
        <source>10 Questions</source>
        <translation>10 Questions</translation>
    </message>
    <message>
        <source>20 Questions</source>
        <translation>20 Questions</translation>
    </message>
    <message>
        <source>Print WorkSheet</source>
        <translation>Print WorkSheet</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Check Answers</source>
        <translation>Check Answers</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hint</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>  You are now ready for the Challenge.  %1 correct answers on the run, with no hints. Click Start to take the Challenge.</source>
        <translation>  You are now ready for the Challenge.  %1 correct answers on the run, with no hints. Click Start to take the Challenge.</translation>
    </message>
    <message>
        <source>your reward picture</source>
        <translation>your reward picture</translation>
    </message>
</context>
<context>
    <name>ActivityMenu</name>
    <message>
        <source>Open more activities</source>
        <translation>Open more activities</translation>
    </message>
    <message>
        <source>Open this activity</source>
        <translation>Open this activity</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Goodbye</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
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
        <translation>£%1</translation>
    </message>
    <message>
        <source>What is %1 of %2?</source>
        <translation>What is %1 of %2?</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 of %2 is %3.</translation>
    </message>
    <message>
        <source>0 is not the answer: every amount here is more than 0.</source>
        <translation>0 is not the answer: every amount here is more than 0.</translation>
    </message>
    <message>
        <source>To find %1 of %2, divide by %3: %2 ÷ %3 = %4.</source>
        <translation>To find %1 of %2, divide by %3: %2 ÷ %3 = %4.</translation>
    </message>
    <message>
        <source>1/%1 of %2 is %2 ÷ %1 = %3, so %4 of %2 is %3 × %5 = %6.</source>
        <translation>1/%1 of %2 is %2 ÷ %1 = %3, so %4 of %2 is %3 × %5 = %6.</translation>
    </message>
    <message>
        <source>1% is one hundredth: %1 ÷ 100 = %2.</source>
        <translation>1% is one hundredth: %1 ÷ 100 = %2.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2. 5% is half of 10%: %2 ÷ 2 = %3.</source>
        <translation>10% is one tenth: %1 ÷ 10 = %2. 5% is half of 10%: %2 ÷ 2 = %3.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2.</source>
        <translation>10% is one tenth: %1 ÷ 10 = %2.</translation>
    </message>
    <message>
        <source>15% is 10% and 5%. 10% of %1 is %2 and 5% is half of that, %3: %2 + %3 = %4.</source>
        <translation>15% is 10% and 5%. 10% of %1 is %2 and 5% is half of that, %3: %2 + %3 = %4.</translation>
    </message>
    <message>
        <source>10% is one tenth: %1 ÷ 10 = %2. 20% is two lots of 10%: %2 × 2 = %3.</source>
        <translation>10% is one tenth: %1 ÷ 10 = %2. 20% is two lots of 10%: %2 × 2 = %3.</translation>
    </message>
    <message>
        <source>25% is one quarter: %1 ÷ 4 = %2.</source>
        <translation>25% is one quarter: %1 ÷ 4 = %2.</translation>
    </message>
    <message>
        <source>50% is one half: %1 ÷ 2 = %2.</source>
        <translation>50% is one half: %1 ÷ 2 = %2.</translation>
    </message>
    <message>
        <source>75% is three quarters: %1 ÷ 4 = %2, and %2 × 3 = %3.</source>
        <translation>75% is three quarters: %1 ÷ 4 = %2, and %2 × 3 = %3.</translation>
    </message>
</context>
<context>
    <name>AmountsBoard</name>
    <message>
        <source>your answer</source>
        <translation>your answer</translation>
    </message>
    <message>
        <source>your answer, in %1</source>
        <translation>your answer, in %1</translation>
    </message>
    <message>
        <source>Find each amount. 10% is one tenth; 25% is one quarter.</source>
        <translation>Find each amount. 10% is one tenth; 25% is one quarter.</translation>
    </message>
</context>
<context>
    <name>ArrowLabel</name>
    <message>
        <source>an arrow pointing down</source>
        <translation>an arrow pointing down</translation>
    </message>
    <message>
        <source>an arrow pointing right</source>
        <translation>an arrow pointing right</translation>
    </message>
</context>
<context>
    <name>BarModel</name>
    <message numerus="yes">
        <source>a bar of %1 cut into %n equal box</source>
        <translation>
            <numerusform>a bar of %1 cut into %n equal box</numerusform>
            <numerusform>a bar of %1 cut into %n equal boxes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a bar of %1 cut into %n equal boxes</source>
        <translation>
            <numerusform>a bar of %1 cut into %n equal box</numerusform>
            <numerusform>a bar of %1 cut into %n equal boxes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 in each box, %n box shaded</source>
        <translation>
            <numerusform>%1, %2 in each box, %n box shaded</numerusform>
            <numerusform>%1, %2 in each box, %n boxes shaded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 in each box, %n boxes shaded</source>
        <translation>
            <numerusform>%1, %2 in each box, %n box shaded</numerusform>
            <numerusform>%1, %2 in each box, %n boxes shaded</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 in each box</source>
        <translation>%1, %2 in each box</translation>
    </message>
</context>
<context>
    <name>BetweenBoard</name>
    <message>
        <source>Write a decimal that lies between the two numbers. The number line helps.</source>
        <translation>Write a decimal that lies between the two numbers. The number line helps.</translation>
    </message>
    <message>
        <source>Write a decimal between %1 and %2.</source>
        <translation>Write a decimal between %1 and %2.</translation>
    </message>
    <message>
        <source>%1 (or any number between)</source>
        <translation>%1 (or any number between)</translation>
    </message>
</context>
<context>
    <name>CancelBoard</name>
    <message>
        <source>top number</source>
        <translation>top number</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>bottom number</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <extracomment>the fraction to cancel, before the answer boxes: &quot;eighteen 24ths equals&quot;</extracomment>
        <translation>%1 equals</translation>
    </message>
    <message>
        <source>Cancel each fraction to its simplest form.</source>
        <translation>Cancel each fraction to its simplest form.</translation>
    </message>
</context>
<context>
    <name>Cancelling</name>
    <message>
        <source>Cancel %1 to its simplest form.</source>
        <translation>Cancel %1 to its simplest form.</translation>
    </message>
    <message>
        <source>%1 cancels to %2: divide the top and the bottom by %3.</source>
        <translation>%1 cancels to %2: divide the top and the bottom by %3.</translation>
    </message>
    <message>
        <source>Type a top number and a bottom number first!</source>
        <translation>Type a top number and a bottom number first!</translation>
    </message>
    <message>
        <source>A bottom number cannot be 0.</source>
        <translation>A bottom number cannot be 0.</translation>
    </message>
    <message>
        <source>%1 is the fraction to cancel: divide its top and its bottom by the same number.</source>
        <translation>%1 is the fraction to cancel: divide its top and its bottom by the same number.</translation>
    </message>
    <message>
        <source>%1 is equal to %2, but it can be cancelled further.</source>
        <translation>%1 is equal to %2, but it can be cancelled further.</translation>
    </message>
    <message>
        <source>The highest common factor of %1 and %2 is %3.</source>
        <translation>The highest common factor of %1 and %2 is %3.</translation>
    </message>
</context>
<context>
    <name>ChainBoard</name>
    <message>
        <source>missing number</source>
        <translation>missing number</translation>
    </message>
    <message>
        <source>bottom number of fraction %1</source>
        <extracomment>an answer box: &quot;top number of fraction 2&quot;</extracomment>
        <translation>bottom number of fraction %1</translation>
    </message>
    <message>
        <source>top number of fraction %1</source>
        <translation>top number of fraction %1</translation>
    </message>
    <message>
        <source>Write the missing numbers so that every fraction in the chain is equal.</source>
        <translation>Write the missing numbers so that every fraction in the chain is equal.</translation>
    </message>
</context>
<context>
    <name>ChoiceBoard</name>
    <message>
        <source>Ring the fraction that is equal to the one in the question.</source>
        <translation>Ring the fraction that is equal to the one in the question.</translation>
    </message>
</context>
<context>
    <name>ChoiceCards</name>
    <message>
        <source>answer cards</source>
        <translation>answer cards</translation>
    </message>
    <message>
        <source>card %1: %2</source>
        <translation>card %1: %2</translation>
    </message>
    <message>
        <source>the right answer</source>
        <translation>the right answer</translation>
    </message>
    <message>
        <source>not the right answer</source>
        <translation>not the right answer</translation>
    </message>
</context>
<context>
    <name>CompareBoard</name>
    <message>
        <source>Write &lt;, = or &gt; in the box between the two fractions.</source>
        <translation>Write &lt;, = or &gt; in the box between the two fractions.</translation>
    </message>
    <message>
        <source>Compare %1 and %2.</source>
        <translation>Compare %1 and %2.</translation>
    </message>
</context>
<context>
    <name>CompareFractions</name>
    <message>
        <source>%1 is equal to %2: multiply the top and the bottom of %3 by %4 to make %5.</source>
        <translation>%1 is equal to %2: multiply the top and the bottom of %3 by %4 to make %5.</translation>
    </message>
    <message>
        <source>%1 is less than %2: both are counted in %3, and %4 is less than %5.</source>
        <translation>%1 is less than %2: both are counted in %3, and %4 is less than %5.</translation>
    </message>
    <message>
        <source>%1 is less than %2: %3 are smaller pieces than %4.</source>
        <translation>%1 is less than %2: %3 are smaller pieces than %4.</translation>
    </message>
    <message>
        <source>%1 is more than %2: both are counted in %3, and %4 is more than %5.</source>
        <translation>%1 is more than %2: both are counted in %3, and %4 is more than %5.</translation>
    </message>
    <message>
        <source>%1 is more than %2: %3 are bigger pieces than %4.</source>
        <translation>%1 is more than %2: %3 are bigger pieces than %4.</translation>
    </message>
    <message>
        <source>Is %1 less than, equal to or more than %2?</source>
        <translation>Is %1 less than, equal to or more than %2?</translation>
    </message>
    <message>
        <source>%1 is less than %2.</source>
        <translation>%1 is less than %2.</translation>
    </message>
    <message>
        <source>%1 is equal to %2.</source>
        <translation>%1 is equal to %2.</translation>
    </message>
    <message>
        <source>%1 is more than %2.</source>
        <translation>%1 is more than %2.</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>is less than</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>is equal to</translation>
    </message>
    <message>
        <source>is more than</source>
        <translation>is more than</translation>
    </message>
    <message>
        <source>Choose one of the three cards first!</source>
        <translation>Choose one of the three cards first!</translation>
    </message>
    <message>
        <source>Both bars are the same length. Which has more shaded: %1 or %2?</source>
        <translation>Both bars are the same length. Which has more shaded: %1 or %2?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
</context>
<context>
    <name>DecimalBoard</name>
    <message>
        <source>your answer</source>
        <translation>your answer</translation>
    </message>
</context>
<context>
    <name>DecimalsBetween</name>
    <message>
        <source>Type a decimal between %1 and %2.</source>
        <translation>Type a decimal between %1 and %2.</translation>
    </message>
    <message>
        <source>%1 is between %2 and %3.</source>
        <translation>%1 is between %2 and %3.</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3. Try %4.</source>
        <translation>%1 is not between %2 and %3. Try %4.</translation>
    </message>
    <message>
        <source>Write them with one more place: %1 and %2. Any of %3 to %4 lies between.</source>
        <translation>Write them with one more place: %1 and %2. Any of %3 to %4 lies between.</translation>
    </message>
</context>
<context>
    <name>Digits</name>
    <message>
        <source>What is the value of the %1?</source>
        <translation>What is the value of the %1?</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The %1 in %2 is %3.</source>
        <translation>The %1 in %2 is %3.</translation>
    </message>
    <message>
        <source>Choose a card first!</source>
        <translation>Choose a card first!</translation>
    </message>
    <message>
        <source>Look at %1 in its place-value columns: the head of the column the %2 stands in names its value.</source>
        <translation>Look at %1 in its place-value columns: the head of the column the %2 stands in names its value.</translation>
    </message>
</context>
<context>
    <name>DigitsBoard</name>
    <message>
        <source>Write the value of the digit: 3 tenths (0.3).</source>
        <translation>Write the value of the digit: 3 tenths (0.3).</translation>
    </message>
    <message>
        <source>What is the value of the %1 in %2?</source>
        <translation>What is the value of the %1 in %2?</translation>
    </message>
</context>
<context>
    <name>Equivalent</name>
    <message>
        <source>%1 equals how many %2?</source>
        <translation>%1 equals how many %2?</translation>
    </message>
    <message>
        <source>%1 equals %2 out of how many?</source>
        <translation>%1 equals %2 out of how many?</translation>
    </message>
    <message>
        <source>How many %1 equal %2?</source>
        <translation>How many %1 equal %2?</translation>
    </message>
    <message>
        <source>%1 out of how many equals %2?</source>
        <translation>%1 out of how many equals %2?</translation>
    </message>
    <message>
        <source>%1 is equal to %2.</source>
        <translation>%1 is equal to %2.</translation>
    </message>
    <message>
        <source>Type the missing number in the box first!</source>
        <translation>Type the missing number in the box first!</translation>
    </message>
    <message>
        <source>The missing number is never 0: look at the fractions again.</source>
        <translation>The missing number is never 0: look at the fractions again.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the top is multiplied by %3 too: %4 × %3 = %5.</source>
        <translation>%1 ÷ %2 = %3, so the top is multiplied by %3 too: %4 × %3 = %5.</translation>
    </message>
    <message>
        <source>%1 × %2 = %3, so the top is multiplied by %2 too: %4 × %2 = %5.</source>
        <translation>%1 × %2 = %3, so the top is multiplied by %2 too: %4 × %2 = %5.</translation>
    </message>
    <message>
        <source>%1 × %2 = %3, so the bottom is multiplied by %2 too: %4 × %2 = %5.</source>
        <translation>%1 × %2 = %3, so the bottom is multiplied by %2 too: %4 × %2 = %5.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the top is divided by %2 too: %4 ÷ %2 = %5.</source>
        <translation>%1 ÷ %2 = %3, so the top is divided by %2 too: %4 ÷ %2 = %5.</translation>
    </message>
    <message>
        <source>%1 ÷ %2 = %3, so the bottom is divided by %2 too: %4 ÷ %2 = %5.</source>
        <translation>%1 ÷ %2 = %3, so the bottom is divided by %2 too: %4 ÷ %2 = %5.</translation>
    </message>
    <message>
        <source>Which fraction is equal to %1?</source>
        <translation>Which fraction is equal to %1?</translation>
    </message>
    <message>
        <source>Choose one of the cards first!</source>
        <translation>Choose one of the cards first!</translation>
    </message>
    <message>
        <source>%1 is not equal to %2: %3 is.</source>
        <translation>%1 is not equal to %2: %3 is.</translation>
    </message>
    <message>
        <source>Multiply the top and the bottom by the same number: %1 × %2 = %3 and %4 × %2 = %5.</source>
        <translation>Multiply the top and the bottom by the same number: %1 × %2 = %3 and %4 × %2 = %5.</translation>
    </message>
</context>
<context>
    <name>EquivalentChain</name>
    <message>
        <source>Fill in the missing numbers so that the fractions are equal.</source>
        <translation>Fill in the missing numbers so that the fractions are equal.</translation>
    </message>
    <message>
        <source>how many %1</source>
        <translation>how many %1</translation>
    </message>
    <message>
        <source>%1 over what number</source>
        <translation>%1 over what number</translation>
    </message>
    <message>
        <source>%1 equals %2, equals %3, equals %4</source>
        <translation>%1 equals %2, equals %3, equals %4</translation>
    </message>
    <message>
        <source>Fill in every box first!</source>
        <translation>Fill in every box first!</translation>
    </message>
    <message>
        <source>A bottom number cannot be 0.</source>
        <translation>A bottom number cannot be 0.</translation>
    </message>
    <message>
        <source>Every fraction in the chain is %1 with top and bottom multiplied by the same number: × %2, × %3, × %4.</source>
        <translation>Every fraction in the chain is %1 with top and bottom multiplied by the same number: × %2, × %3, × %4.</translation>
    </message>
</context>
<context>
    <name>FocusRing</name>
    <message>
        <source>Keyboard focus</source>
        <translation>Keyboard focus</translation>
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
        <translation>  Secondary School version</translation>
    </message>
    <message>
        <source>  Primary School version</source>
        <translation>  Primary School version</translation>
    </message>
    <message>
        <source>  Remove option to play sound</source>
        <translation>  Remove option to play sound</translation>
    </message>
    <message>
        <source>Please choose the version of Partitude that you require</source>
        <translation>Please choose the version of Partitude that you require</translation>
    </message>
    <message>
        <source>Keep these choices and go on to choose your year</source>
        <translation>Keep these choices and go on to choose your year</translation>
    </message>
    <message>
        <source>Partitude cannot save your choices in the folder:
%1

They will hold until Partitude is closed. To keep them, start Partitude with --settings DIR to choose a folder it can write to.</source>
        <translation>Partitude cannot save your choices in the folder:
%1

They will hold until Partitude is closed. To keep them, start Partitude with --settings DIR to choose a folder it can write to.</translation>
    </message>
</context>
<context>
    <name>FractionOf</name>
    <message>
        <source>What is %1 of %2?</source>
        <translation>What is %1 of %2?</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 of %2 is %3.</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Type your answer in the box first!</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the bar again.</source>
        <translation>0 is not the answer: look at the bar again.</translation>
    </message>
    <message>
        <source>To find %1 of %2, share %2 into %3 equal boxes: %2 ÷ %3 = %4.</source>
        <translation>To find %1 of %2, share %2 into %3 equal boxes: %2 ÷ %3 = %4.</translation>
    </message>
    <message>
        <source>First %1 of %2: %2 ÷ %3 = %4. Then %5 is %6 lots of %4: %7.</source>
        <translation>First %1 of %2: %2 ÷ %3 = %4. Then %5 is %6 lots of %4: %7.</translation>
    </message>
</context>
<context>
    <name>FractionOfBoard</name>
    <message>
        <source>your answer</source>
        <translation>your answer</translation>
    </message>
    <message>
        <source>your answer: %1</source>
        <translation>your answer: %1</translation>
    </message>
    <message>
        <source>Share the number into the equal boxes of the bar.</source>
        <translation>Share the number into the equal boxes of the bar.</translation>
    </message>
</context>
<context>
    <name>FractionWall</name>
    <message>
        <source>1 whole</source>
        <translation>1 whole</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a count of bricks and their name: 8 eighths</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a row of %1, none shaded</source>
        <translation>a row of %1, none shaded</translation>
    </message>
    <message>
        <source>a row of %1, %2 shaded</source>
        <translation>a row of %1, %2 shaded</translation>
    </message>
    <message>
        <source>an empty fraction wall</source>
        <translation>an empty fraction wall</translation>
    </message>
</context>
<context>
    <name>Fractions</name>
    <message>
        <source>zero</source>
        <translation>zero</translation>
    </message>
    <message>
        <source>one</source>
        <translation>one</translation>
    </message>
    <message>
        <source>two</source>
        <translation>two</translation>
    </message>
    <message>
        <source>three</source>
        <translation>three</translation>
    </message>
    <message>
        <source>four</source>
        <translation>four</translation>
    </message>
    <message>
        <source>five</source>
        <translation>five</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>seven</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>eight</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>nine</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>ten</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>eleven</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>twelve</translation>
    </message>
    <message>
        <source>thirteen</source>
        <translation>thirteen</translation>
    </message>
    <message>
        <source>fourteen</source>
        <translation>fourteen</translation>
    </message>
    <message>
        <source>fifteen</source>
        <translation>fifteen</translation>
    </message>
    <message>
        <source>sixteen</source>
        <translation>sixteen</translation>
    </message>
    <message>
        <source>seventeen</source>
        <translation>seventeen</translation>
    </message>
    <message>
        <source>eighteen</source>
        <translation>eighteen</translation>
    </message>
    <message>
        <source>nineteen</source>
        <translation>nineteen</translation>
    </message>
    <message>
        <source>twenty</source>
        <translation>twenty</translation>
    </message>
    <message>
        <source>%1th</source>
        <translation>%1th</translation>
    </message>
    <message>
        <source>%1ths</source>
        <translation>%1ths</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>a mixed number: five and two thirds</comment>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>halves</source>
        <translation>halves</translation>
    </message>
    <message>
        <source>thirds</source>
        <translation>thirds</translation>
    </message>
    <message>
        <source>quarters</source>
        <translation>quarters</translation>
    </message>
    <message>
        <source>fifths</source>
        <translation>fifths</translation>
    </message>
    <message>
        <source>sixths</source>
        <translation>sixths</translation>
    </message>
    <message>
        <source>sevenths</source>
        <translation>sevenths</translation>
    </message>
    <message>
        <source>eighths</source>
        <translation>eighths</translation>
    </message>
    <message>
        <source>ninths</source>
        <translation>ninths</translation>
    </message>
    <message>
        <source>tenths</source>
        <translation>tenths</translation>
    </message>
    <message>
        <source>half</source>
        <translation>half</translation>
    </message>
    <message>
        <source>third</source>
        <translation>third</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>quarter</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>fifth</translation>
    </message>
    <message>
        <source>sixth</source>
        <translation>sixth</translation>
    </message>
    <message>
        <source>seventh</source>
        <translation>seventh</translation>
    </message>
    <message>
        <source>eighth</source>
        <translation>eighth</translation>
    </message>
    <message>
        <source>ninth</source>
        <translation>ninth</translation>
    </message>
    <message>
        <source>tenth</source>
        <translation>tenth</translation>
    </message>
    <message>
        <source>one half</source>
        <translation>one half</translation>
    </message>
    <message numerus="yes">
        <source>%1 halves</source>
        <translation>
            <numerusform>%1 half</numerusform>
            <numerusform>%1 halves</numerusform>
        </translation>
    </message>
    <message>
        <source>one third</source>
        <translation>one third</translation>
    </message>
    <message numerus="yes">
        <source>%1 thirds</source>
        <translation>
            <numerusform>%1 third</numerusform>
            <numerusform>%1 thirds</numerusform>
        </translation>
    </message>
    <message>
        <source>one quarter</source>
        <translation>one quarter</translation>
    </message>
    <message numerus="yes">
        <source>%1 quarters</source>
        <translation>
            <numerusform>%1 quarter</numerusform>
            <numerusform>%1 quarters</numerusform>
        </translation>
    </message>
    <message>
        <source>one fifth</source>
        <translation>one fifth</translation>
    </message>
    <message numerus="yes">
        <source>%1 fifths</source>
        <translation>
            <numerusform>%1 fifth</numerusform>
            <numerusform>%1 fifths</numerusform>
        </translation>
    </message>
    <message>
        <source>one sixth</source>
        <translation>one sixth</translation>
    </message>
    <message numerus="yes">
        <source>%1 sixths</source>
        <translation>
            <numerusform>%1 sixth</numerusform>
            <numerusform>%1 sixths</numerusform>
        </translation>
    </message>
    <message>
        <source>one seventh</source>
        <translation>one seventh</translation>
    </message>
    <message numerus="yes">
        <source>%1 sevenths</source>
        <translation>
            <numerusform>%1 seventh</numerusform>
            <numerusform>%1 sevenths</numerusform>
        </translation>
    </message>
    <message>
        <source>one eighth</source>
        <translation>one eighth</translation>
    </message>
    <message numerus="yes">
        <source>%1 eighths</source>
        <translation>
            <numerusform>%1 eighth</numerusform>
            <numerusform>%1 eighths</numerusform>
        </translation>
    </message>
    <message>
        <source>one ninth</source>
        <translation>one ninth</translation>
    </message>
    <message numerus="yes">
        <source>%1 ninths</source>
        <translation>
            <numerusform>%1 ninth</numerusform>
            <numerusform>%1 ninths</numerusform>
        </translation>
    </message>
    <message>
        <source>one tenth</source>
        <translation>one tenth</translation>
    </message>
    <message numerus="yes">
        <source>%1 tenths</source>
        <translation>
            <numerusform>%1 tenth</numerusform>
            <numerusform>%1 tenths</numerusform>
        </translation>
    </message>
    <message>
        <source>eleventh</source>
        <translation>eleventh</translation>
    </message>
    <message>
        <source>elevenths</source>
        <translation>elevenths</translation>
    </message>
    <message>
        <source>one eleventh</source>
        <translation>one eleventh</translation>
    </message>
    <message numerus="yes">
        <source>%1 elevenths</source>
        <translation>
            <numerusform>%1 eleventh</numerusform>
            <numerusform>%1 elevenths</numerusform>
        </translation>
    </message>
    <message>
        <source>twelfth</source>
        <translation>twelfth</translation>
    </message>
    <message>
        <source>twelfths</source>
        <translation>twelfths</translation>
    </message>
    <message>
        <source>one twelfth</source>
        <translation>one twelfth</translation>
    </message>
    <message numerus="yes">
        <source>%1 twelfths</source>
        <translation>
            <numerusform>%1 twelfth</numerusform>
            <numerusform>%1 twelfths</numerusform>
        </translation>
    </message>
    <message>
        <source>twentieth</source>
        <translation>twentieth</translation>
    </message>
    <message>
        <source>twentieths</source>
        <translation>twentieths</translation>
    </message>
    <message>
        <source>one twentieth</source>
        <translation>one twentieth</translation>
    </message>
    <message numerus="yes">
        <source>%1 twentieths</source>
        <translation>
            <numerusform>%1 twentieth</numerusform>
            <numerusform>%1 twentieths</numerusform>
        </translation>
    </message>
    <message>
        <source>hundredth</source>
        <translation>hundredth</translation>
    </message>
    <message>
        <source>hundredths</source>
        <translation>hundredths</translation>
    </message>
    <message>
        <source>one hundredth</source>
        <translation>one hundredth</translation>
    </message>
    <message numerus="yes">
        <source>%1 hundredths</source>
        <translation>
            <numerusform>%1 hundredth</numerusform>
            <numerusform>%1 hundredths</numerusform>
        </translation>
    </message>
    <message>
        <source>thousandth</source>
        <translation>thousandth</translation>
    </message>
    <message>
        <source>thousandths</source>
        <translation>thousandths</translation>
    </message>
    <message>
        <source>one thousandth</source>
        <translation>one thousandth</translation>
    </message>
    <message numerus="yes">
        <source>%1 thousandths</source>
        <translation>
            <numerusform>%1 thousandth</numerusform>
            <numerusform>%1 thousandths</numerusform>
        </translation>
    </message>
    <message>
        <source>%1st</source>
        <translation>%1st</translation>
    </message>
    <message>
        <source>%1nd</source>
        <translation>%1nd</translation>
    </message>
    <message>
        <source>%1rd</source>
        <translation>%1rd</translation>
    </message>
    <message>
        <source>%1sts</source>
        <translation>%1sts</translation>
    </message>
    <message>
        <source>%1nds</source>
        <translation>%1nds</translation>
    </message>
    <message>
        <source>%1rds</source>
        <translation>%1rds</translation>
    </message>
    <message>
        <source>one %1</source>
        <comment>one part without a name of its own: one 22nd</comment>
        <translation>one %1</translation>
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
        <translation>Click on one half of the %1</translation>
    </message>
    <message>
        <source>Click on one quarter of the %1</source>
        <translation>Click on one quarter of the %1</translation>
    </message>
    <message>
        <source>You chose one half of the %1</source>
        <translation>You chose one half of the %1</translation>
    </message>
    <message>
        <source>You chose one quarter of the %1</source>
        <translation>You chose one quarter of the %1</translation>
    </message>
    <message numerus="yes">
        <source>You should have clicked on %n picture</source>
        <translation>
            <numerusform>You should have clicked on %n picture</numerusform>
            <numerusform>You should have clicked on %n pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You should have clicked on %n pictures</source>
        <translation>
            <numerusform>You should have clicked on %n picture</numerusform>
            <numerusform>You should have clicked on %n pictures</numerusform>
        </translation>
    </message>
    <message>
        <source>holly</source>
        <translation>holly</translation>
    </message>
    <message>
        <source>ducks</source>
        <translation>ducks</translation>
    </message>
    <message>
        <source>suns</source>
        <translation>suns</translation>
    </message>
    <message>
        <source>dinosaurs</source>
        <translation>dinosaurs</translation>
    </message>
    <message>
        <source>spiders</source>
        <translation>spiders</translation>
    </message>
    <message>
        <source>gorillas</source>
        <translation>gorillas</translation>
    </message>
    <message>
        <source>holly leaf</source>
        <translation>holly leaf</translation>
    </message>
    <message>
        <source>duck</source>
        <translation>duck</translation>
    </message>
    <message>
        <source>sun</source>
        <translation>sun</translation>
    </message>
    <message>
        <source>dinosaur</source>
        <translation>dinosaur</translation>
    </message>
    <message>
        <source>spider</source>
        <translation>spider</translation>
    </message>
    <message>
        <source>gorilla</source>
        <translation>gorilla</translation>
    </message>
</context>
<context>
    <name>HalvesOfNumbers</name>
    <message>
        <source>What is %1 of %2?</source>
        <translation>What is %1 of %2?</translation>
    </message>
    <message>
        <source>%1 of %2 is %3.</source>
        <translation>%1 of %2 is %3.</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Type your answer in the box first!</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the pictures again.</source>
        <translation>0 is not the answer: look at the pictures again.</translation>
    </message>
    <message>
        <source>Share the %1 %2 into %3 equal groups: %4 in each group.</source>
        <translation>Share the %1 %2 into %3 equal groups: %4 in each group.</translation>
    </message>
    <message>
        <source>%1 is 1 group: %2 %3.</source>
        <translation>%1 is 1 group: %2 %3.</translation>
    </message>
    <message>
        <source>%1 is %4 groups: %2 %3.</source>
        <translation>%1 is %4 groups: %2 %3.</translation>
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
        <translation>Colour %1 of the %2.</translation>
    </message>
    <message>
        <source>You must colour some parts!</source>
        <translation>You must colour some parts!</translation>
    </message>
    <message>
        <source>You coloured %1 of the %2.</source>
        <translation>You coloured %1 of the %2.</translation>
    </message>
    <message>
        <source>Two quarters is the same as one half.</source>
        <translation>Two quarters is the same as one half.</translation>
    </message>
    <message>
        <source>You coloured %1 of the %2 parts: that is %3. %4 is %5.</source>
        <translation>You coloured %1 of the %2 parts: that is %3. %4 is %5.</translation>
    </message>
    <message>
        <source>The %1 is cut into %2 equal parts.</source>
        <translation>The %1 is cut into %2 equal parts.</translation>
    </message>
    <message>
        <source>%1 is %2 of them.</source>
        <translation>%1 is %2 of them.</translation>
    </message>
    <message>
        <source>You have not coloured any yet.</source>
        <translation>You have not coloured any yet.</translation>
    </message>
    <message>
        <source>You have coloured %1.</source>
        <translation>You have coloured %1.</translation>
    </message>
</context>
<context>
    <name>HowMany</name>
    <message>
        <source>each one is 10 tenths</source>
        <translation>each one is 10 tenths</translation>
    </message>
    <message>
        <source>each one is 100 hundredths</source>
        <translation>each one is 100 hundredths</translation>
    </message>
    <message>
        <source>each one is 1000 thousandths</source>
        <translation>each one is 1000 thousandths</translation>
    </message>
    <message>
        <source>each tenth is 10 hundredths</source>
        <translation>each tenth is 10 hundredths</translation>
    </message>
    <message>
        <source>each tenth is 100 thousandths</source>
        <translation>each tenth is 100 thousandths</translation>
    </message>
    <message>
        <source>each hundredth is 10 thousandths</source>
        <translation>each hundredth is 10 thousandths</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>How many tenths are there in %1?</source>
        <translation>How many tenths are there in %1?</translation>
    </message>
    <message>
        <source>How many hundredths are there in %1?</source>
        <translation>How many hundredths are there in %1?</translation>
    </message>
    <message>
        <source>How many thousandths are there in %1?</source>
        <translation>How many thousandths are there in %1?</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 is %2.</translation>
    </message>
    <message>
        <source>0 is not the answer: look at the number again.</source>
        <translation>0 is not the answer: look at the number again.</translation>
    </message>
    <message>
        <source>%1 is %2, not %3: %3 is only the digit in the %4 column.</source>
        <translation>%1 is %2, not %3: %3 is only the digit in the %4 column.</translation>
    </message>
    <message>
        <source>%1, so %2 = %3.</source>
        <translation>%1, so %2 = %3.</translation>
    </message>
    <message>
        <source>%1, so %2 × %3 = %4.</source>
        <translation>%1, so %2 × %3 = %4.</translation>
    </message>
</context>
<context>
    <name>HowManyBoard</name>
    <message>
        <source>your answer</source>
        <translation>your answer</translation>
    </message>
    <message>
        <source>Write the number in place-value columns to help you count.</source>
        <translation>Write the number in place-value columns to help you count.</translation>
    </message>
</context>
<context>
    <name>HundredSquare</name>
    <message>
        <source>a hundred square with %1 small squares shaded</source>
        <translation>a hundred square with %1 small squares shaded</translation>
    </message>
</context>
<context>
    <name>KitScreen</name>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Click Start to have another go... or click Exit</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Good Luck.</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Aim to get 10 or 20 questions correct to gain a certificate.</translation>
    </message>
    <message>
        <source>Not quite. %1</source>
        <translation>Not quite. %1</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>Partitude logo</source>
        <translation>Partitude logo</translation>
    </message>
    <message>
        <source>%1 logo</source>
        <translation>%1 logo</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Mixed Numbers and Improper Fractions</source>
        <translation>Mixed Numbers and Improper Fractions</translation>
    </message>
</context>
<context>
    <name>MixedBoard</name>
    <message>
        <source>whole number</source>
        <translation>whole number</translation>
    </message>
    <message>
        <source>top number</source>
        <translation>top number</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>bottom number</translation>
    </message>
    <message>
        <source>0 is never the answer here.</source>
        <translation>0 is never the answer here.</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <translation>%1 equals</translation>
    </message>
    <message>
        <source>%1 times %2 is %3</source>
        <translation>%1 times %2 is %3</translation>
    </message>
    <message>
        <source>Change each improper fraction to a mixed number.</source>
        <translation>Change each improper fraction to a mixed number.</translation>
    </message>
    <message>
        <source>Change each mixed number to an improper fraction.</source>
        <translation>Change each mixed number to an improper fraction.</translation>
    </message>
    <message>
        <source>Change each improper fraction to a mixed number, and each mixed number to an improper fraction.</source>
        <translation>Change each improper fraction to a mixed number, and each mixed number to an improper fraction.</translation>
    </message>
</context>
<context>
    <name>MixedQuestion</name>
    <message>
        <source>%1 and %2/%3</source>
        <comment>a mixed number: 2 and 3/4</comment>
        <translation>%1 and %2/%3</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <comment>one number is another: 11/4 is 2 and 3/4</comment>
        <translation>%1 is %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 is %n whole one with %3 %4 left over.</source>
        <translation>
            <numerusform>%1 %2 is %n whole one with %3 %4 left over.</numerusform>
            <numerusform>%1 %2 is %n whole ones with %3 %4 left over.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 is %n whole ones with %3 %4 left over.</source>
        <translation>
            <numerusform>%1 %2 is %n whole one with %3 %4 left over.</numerusform>
            <numerusform>%1 %2 is %n whole ones with %3 %4 left over.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each whole number is %1 %2. You have %n whole number and %3 %4.</source>
        <translation>
            <numerusform>Each whole number is %1 %2. You have %n whole number and %3 %4.</numerusform>
            <numerusform>Each whole number is %1 %2. You have %n whole numbers and %3 %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each whole number is %1 %2. You have %n whole numbers and %3 %4.</source>
        <translation>
            <numerusform>Each whole number is %1 %2. You have %n whole number and %3 %4.</numerusform>
            <numerusform>Each whole number is %1 %2. You have %n whole numbers and %3 %4.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change %1 to a mixed number.</source>
        <translation>Change %1 to a mixed number.</translation>
    </message>
    <message>
        <source>Change %1 to an improper fraction.</source>
        <translation>Change %1 to an improper fraction.</translation>
    </message>
    <message>
        <source>Type a number in every box first!</source>
        <translation>Type a number in every box first!</translation>
    </message>
</context>
<context>
    <name>Module1</name>
    <message>
        <source>Check Your Answer</source>
        <translation>Check Your Answer</translation>
    </message>
    <message>
        <source>Press To Start</source>
        <translation>Press To Start</translation>
    </message>
    <message>
        <source>Print A Worksheet</source>
        <translation>Print A Worksheet</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Goodbye</translation>
    </message>
    <message>
        <source>Get Some Help</source>
        <translation>Get Some Help</translation>
    </message>
    <message>
        <source>Well done! </source>
        <translation>Well done! </translation>
    </message>
    <message>
        <source>Good work! </source>
        <translation>Good work! </translation>
    </message>
    <message>
        <source>Cool! </source>
        <translation>Cool! </translation>
    </message>
    <message>
        <source>Smart cookie! </source>
        <translation>Smart cookie! </translation>
    </message>
    <message>
        <source>Yes! </source>
        <translation>Yes! </translation>
    </message>
    <message>
        <source>Great! </source>
        <translation>Great! </translation>
    </message>
    <message>
        <source>Yipee! </source>
        <translation>Yipee! </translation>
    </message>
    <message>
        <source>Brilliant! </source>
        <translation>Brilliant! </translation>
    </message>
    <message>
        <source>Wicked! </source>
        <translation>Wicked! </translation>
    </message>
    <message>
        <source>Wonderful! </source>
        <translation>Wonderful! </translation>
    </message>
    <message>
        <source>Super! </source>
        <translation>Super! </translation>
    </message>
    <message>
        <source>Excellent! </source>
        <translation>Excellent! </translation>
    </message>
</context>
<context>
    <name>NameFraction</name>
    <message>
        <source>What fraction of the %1 are ringed?</source>
        <translation>What fraction of the %1 are ringed?</translation>
    </message>
    <message>
        <source>What fraction of the %1 is shaded?</source>
        <translation>What fraction of the %1 is shaded?</translation>
    </message>
    <message>
        <source>Type the top number and the bottom number first!</source>
        <translation>Type the top number and the bottom number first!</translation>
    </message>
    <message>
        <source>The bottom number cannot be 0: count all the parts.</source>
        <translation>The bottom number cannot be 0: count all the parts.</translation>
    </message>
    <message>
        <source>The top number cannot be 0: count the ringed pictures.</source>
        <translation>The top number cannot be 0: count the ringed pictures.</translation>
    </message>
    <message>
        <source>The top number cannot be 0: count the shaded parts.</source>
        <translation>The top number cannot be 0: count the shaded parts.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed.</source>
        <translation>%1 of the %2 are ringed.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded.</source>
        <translation>%1 of the %2 is shaded.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed: that is %3.</source>
        <translation>%1 of the %2 are ringed: that is %3.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: that is %3.</source>
        <translation>%1 of the %2 is shaded: that is %3.</translation>
    </message>
    <message>
        <source>%1 of the %2 are ringed: %3 of the %4 %2.</source>
        <translation>%1 of the %2 are ringed: %3 of the %4 %2.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: %3 of its %4 small squares.</source>
        <translation>%1 of the %2 is shaded: %3 of its %4 small squares.</translation>
    </message>
    <message>
        <source>%1 of the %2 is shaded: %3 of its %4 parts.</source>
        <translation>%1 of the %2 is shaded: %3 of its %4 parts.</translation>
    </message>
    <message>
        <source>Each small square is 1/100; each column is 1/10.</source>
        <translation>Each small square is 1/100; each column is 1/10.</translation>
    </message>
    <message>
        <source>Count the shaded squares: %1.</source>
        <translation>Count the shaded squares: %1.</translation>
    </message>
    <message>
        <source>Count all the %1: %2. That is the bottom number. Count the ringed %1: %3. That is the top number.</source>
        <translation>Count all the %1: %2. That is the bottom number. Count the ringed %1: %3. That is the top number.</translation>
    </message>
    <message>
        <source>Count all the equal parts: %1. That is the bottom number. Count the shaded parts: %2. That is the top number.</source>
        <translation>Count all the equal parts: %1. That is the bottom number. Count the shaded parts: %2. That is the top number.</translation>
    </message>
</context>
<context>
    <name>NamingBoard</name>
    <message>
        <source>top number</source>
        <translation>top number</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>bottom number</translation>
    </message>
    <message>
        <source>Write the fraction each picture shows: the top number over the bottom number.</source>
        <translation>Write the fraction each picture shows: the top number over the bottom number.</translation>
    </message>
</context>
<context>
    <name>NumberLine</name>
    <message>
        <source>a number line</source>
        <translation>a number line</translation>
    </message>
    <message>
        <source>a number line from %1 to %2</source>
        <translation>a number line from %1 to %2</translation>
    </message>
    <message>
        <source>%1, %2 to round</source>
        <translation>%1, %2 to round</translation>
    </message>
    <message>
        <source>%1, %2 marked</source>
        <translation>%1, %2 marked</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Folder holding the program&apos;s pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav).</source>
        <translation>Folder holding the program&apos;s pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav).</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>DIR</translation>
    </message>
    <message>
        <source>Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice.</source>
        <translation>Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice.</translation>
    </message>
    <message>
        <source>Print every page to a new PDF file in DIR instead of the printer.</source>
        <translation>Print every page to a new PDF file in DIR instead of the printer.</translation>
    </message>
    <message>
        <source>Partitude: fractions practice and Challenges for Years 2 to 6.</source>
        <translation>Partitude: fractions practice and Challenges for Years 2 to 6.</translation>
    </message>
    <message>
        <source>Draw every screen F times its designed size (for example 1.5); without it the screens fill most of the display.</source>
        <translation>Draw every screen F times its designed size (for example 1.5); without it the screens fill most of the display.</translation>
    </message>
    <message>
        <source>Show every screen full screen (F11 on any screen turns it on and off).</source>
        <translation>Show every screen full screen (F11 on any screen turns it on and off).</translation>
    </message>
    <message>
        <source>unexpected word on the command line: %1</source>
        <translation>unexpected word on the command line: %1</translation>
    </message>
    <message>
        <source>--scale needs a number such as 1.5, not &quot;%1&quot;.</source>
        <translation>--scale needs a number such as 1.5, not &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--scale needs a number above 0, not %1.</source>
        <translation>--scale needs a number above 0, not %1.</translation>
    </message>
    <message>
        <source>--scale %1 is too large: the largest is %2.</source>
        <translation>--scale %1 is too large: the largest is %2.</translation>
    </message>
    <message>
        <source>--scale %1 is too large for this display (%2 x %3): a screen would not fit on it.</source>
        <translation>--scale %1 is too large for this display (%2 x %3): a screen would not fit on it.</translation>
    </message>
</context>
<context>
    <name>PairBoard</name>
    <message>
        <source>the missing number</source>
        <translation>the missing number</translation>
    </message>
    <message>
        <source>Find the missing number. Use the fraction wall to help you.</source>
        <translation>Find the missing number. Use the fraction wall to help you.</translation>
    </message>
    <message>
        <source>Find the missing number in each pair of equal fractions.</source>
        <translation>Find the missing number in each pair of equal fractions.</translation>
    </message>
</context>
<context>
    <name>PartsOfSet</name>
    <message>
        <source>Click on %1 of the %2.</source>
        <translation>Click on %1 of the %2.</translation>
    </message>
    <message>
        <source>You chose %1 of the %2.</source>
        <translation>You chose %1 of the %2.</translation>
    </message>
    <message>
        <source>Ring %1 of the %2.</source>
        <translation>Ring %1 of the %2.</translation>
    </message>
    <message>
        <source>%1 of the %2 %3</source>
        <translation>%1 of the %2 %3</translation>
    </message>
    <message>
        <source>You must choose some pictures!</source>
        <translation>You must choose some pictures!</translation>
    </message>
    <message>
        <source>%1 %2 in %3 equal groups is %4 in each group.</source>
        <translation>%1 %2 in %3 equal groups is %4 in each group.</translation>
    </message>
    <message>
        <source>%1 is 1 group: %2 %3.</source>
        <translation>%1 is 1 group: %2 %3.</translation>
    </message>
    <message>
        <source>%1 is %4 groups: %2 %3.</source>
        <translation>%1 is %4 groups: %2 %3.</translation>
    </message>
    <message>
        <source>You have not chosen any yet.</source>
        <translation>You have not chosen any yet.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is not enough yet.</source>
        <translation>You have chosen %1: that is not enough yet.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is too many.</source>
        <translation>You have chosen %1: that is too many.</translation>
    </message>
    <message>
        <source>You have chosen %1: that is just right!</source>
        <translation>You have chosen %1: that is just right!</translation>
    </message>
</context>
<context>
    <name>PartsOfSetBoard</name>
    <message>
        <source>Share the pictures into equal groups, then ring the ones asked for.</source>
        <translation>Share the pictures into equal groups, then ring the ones asked for.</translation>
    </message>
</context>
<context>
    <name>PictureCell</name>
    <message>
        <source>Click to choose this picture; click again to leave it out</source>
        <translation>Click to choose this picture; click again to leave it out</translation>
    </message>
    <message>
        <source>%1 %2 of %3, chosen</source>
        <translation>%1 %2 of %3, chosen</translation>
    </message>
    <message>
        <source>%1 %2 of %3, not chosen</source>
        <translation>%1 %2 of %3, not chosen</translation>
    </message>
</context>
<context>
    <name>PictureRows</name>
    <message numerus="yes">
        <source>%1 in %n group of %2</source>
        <translation>
            <numerusform>%1 in %n group of %2</numerusform>
            <numerusform>%1 in %n groups of %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n groups of %2</source>
        <translation>
            <numerusform>%1 in %n group of %2</numerusform>
            <numerusform>%1 in %n groups of %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n group marked</source>
        <translation>
            <numerusform>%1, %n group marked</numerusform>
            <numerusform>%1, %n groups marked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n groups marked</source>
        <translation>
            <numerusform>%1, %n group marked</numerusform>
            <numerusform>%1, %n groups marked</numerusform>
        </translation>
    </message>
    <message>
        <source>no pictures yet</source>
        <translation>no pictures yet</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n ringed</source>
        <translation>
            <numerusform>%1, %n ringed</numerusform>
            <numerusform>%1, %n ringed</numerusform>
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
        <translation>Partitude cannot go on: the picture file &quot;%1&quot; is missing or cannot be read.

Partitude looks for its pictures in the folder:
%2

To use pictures in another folder, start Partitude with %3 and that folder.</translation>
    </message>
    <message>
        <source>Partitude cannot go on: the picture file &quot;%1&quot; cannot be read: %2.

Partitude looks for its pictures in the folder:
%3

To use pictures in another folder, start Partitude with %4 and that folder.</source>
        <translation>Partitude cannot go on: the picture file &quot;%1&quot; cannot be read: %2.

Partitude looks for its pictures in the folder:
%3

To use pictures in another folder, start Partitude with %4 and that folder.</translation>
    </message>
</context>
<context>
    <name>PicturesBoard</name>
    <message>
        <source>your answer</source>
        <translation>your answer</translation>
    </message>
    <message>
        <source>Share the pictures into equal groups to find the answer.</source>
        <translation>Share the pictures into equal groups to find the answer.</translation>
    </message>
</context>
<context>
    <name>PlaceValueHeads</name>
    <message>
        <source>units</source>
        <translation>units</translation>
    </message>
    <message>
        <source>Column heads: units, tenths, hundredths, thousandths</source>
        <translation>Column heads: units, tenths, hundredths, thousandths</translation>
    </message>
</context>
<context>
    <name>PlaceValueTable</name>
    <message>
        <source>no number yet</source>
        <translation>no number yet</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>the number %1</translation>
    </message>
    <message>
        <source>%1 in place-value columns: %2</source>
        <translation>%1 in place-value columns: %2</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message numerus="yes">
        <source>%n ten</source>
        <translation>
            <numerusform>%n ten</numerusform>
            <numerusform>%n tens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tens</source>
        <translation>
            <numerusform>%n ten</numerusform>
            <numerusform>%n tens</numerusform>
        </translation>
    </message>
    <message>
        <source>tens</source>
        <translation>tens</translation>
    </message>
    <message numerus="yes">
        <source>%n one</source>
        <translation>
            <numerusform>%n one</numerusform>
            <numerusform>%n ones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ones</source>
        <translation>
            <numerusform>%n one</numerusform>
            <numerusform>%n ones</numerusform>
        </translation>
    </message>
    <message>
        <source>ones</source>
        <translation>ones</translation>
    </message>
    <message numerus="yes">
        <source>%n tenth</source>
        <translation>
            <numerusform>%n tenth</numerusform>
            <numerusform>%n tenths</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tenths</source>
        <translation>
            <numerusform>%n tenth</numerusform>
            <numerusform>%n tenths</numerusform>
        </translation>
    </message>
    <message>
        <source>tenths</source>
        <translation>tenths</translation>
    </message>
    <message numerus="yes">
        <source>%n hundredth</source>
        <translation>
            <numerusform>%n hundredth</numerusform>
            <numerusform>%n hundredths</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hundredths</source>
        <translation>
            <numerusform>%n hundredth</numerusform>
            <numerusform>%n hundredths</numerusform>
        </translation>
    </message>
    <message>
        <source>hundredths</source>
        <translation>hundredths</translation>
    </message>
    <message numerus="yes">
        <source>%n thousandth</source>
        <translation>
            <numerusform>%n thousandth</numerusform>
            <numerusform>%n thousandths</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thousandths</source>
        <translation>
            <numerusform>%n thousandth</numerusform>
            <numerusform>%n thousandths</numerusform>
        </translation>
    </message>
    <message>
        <source>thousandths</source>
        <translation>thousandths</translation>
    </message>
    <message>
        <source>%1 point %2</source>
        <translation>%1 point %2</translation>
    </message>
    <message>
        <source>Type your answer in the box first!</source>
        <translation>Type your answer in the box first!</translation>
    </message>
    <message>
        <source>Write your number without a 0 in front.</source>
        <translation>Write your number without a 0 in front.</translation>
    </message>
    <message>
        <source>That number is too long.</source>
        <translation>That number is too long.</translation>
    </message>
</context>
<context>
    <name>Reward</name>
    <message>
        <source>You have been unsuccessful in the Challenge.</source>
        <translation>You have been unsuccessful in the Challenge.</translation>
    </message>
    <message>
        <source>The Challenge will begin again.</source>
        <translation>The Challenge will begin again.</translation>
    </message>
    <message>
        <source>stars</source>
        <translation>stars</translation>
    </message>
</context>
<context>
    <name>Rounding</name>
    <message>
        <source>Round %1 to the nearest whole number.</source>
        <translation>Round %1 to the nearest whole number.</translation>
    </message>
    <message>
        <source>Round %1 to one decimal place.</source>
        <translation>Round %1 to one decimal place.</translation>
    </message>
    <message>
        <source>Round %1 to two decimal places.</source>
        <translation>Round %1 to two decimal places.</translation>
    </message>
    <message>
        <source>%1 rounded to the nearest whole number is %2.</source>
        <translation>%1 rounded to the nearest whole number is %2.</translation>
    </message>
    <message>
        <source>%1 rounded to one decimal place is %2.</source>
        <translation>%1 rounded to one decimal place is %2.</translation>
    </message>
    <message>
        <source>%1 rounded to two decimal places is %2.</source>
        <translation>%1 rounded to two decimal places is %2.</translation>
    </message>
    <message>
        <source>Look at the digit after the place you round to: %1 is 5 or more, so round up to %2.</source>
        <translation>Look at the digit after the place you round to: %1 is 5 or more, so round up to %2.</translation>
    </message>
    <message>
        <source>Look at the digit after the place you round to: %1 is less than 5, so round down to %2.</source>
        <translation>Look at the digit after the place you round to: %1 is less than 5, so round down to %2.</translation>
    </message>
</context>
<context>
    <name>RoundingBoard</name>
    <message>
        <source>Round each number as it asks. The number line shows the two numbers it lies between.</source>
        <translation>Round each number as it asks. The number line shows the two numbers it lies between.</translation>
    </message>
</context>
<context>
    <name>ShapeBoard</name>
    <message>
        <source>part %1 of %2, %3</source>
        <translation>part %1 of %2, %3</translation>
    </message>
    <message>
        <source>coloured</source>
        <translation>coloured</translation>
    </message>
    <message>
        <source>not coloured</source>
        <translation>not coloured</translation>
    </message>
    <message numerus="yes">
        <source>a %1 cut into %2 equal parts, %n coloured</source>
        <translation>
            <numerusform>a %1 cut into %2 equal parts, %n coloured</numerusform>
            <numerusform>a %1 cut into %2 equal parts, %n coloured</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a %1 cut into %2 equal parts, %n shaded</source>
        <translation>
            <numerusform>a %1 cut into %2 equal parts, %n shaded</numerusform>
            <numerusform>a %1 cut into %2 equal parts, %n shaded</numerusform>
        </translation>
    </message>
    <message>
        <source>shaded</source>
        <translation>shaded</translation>
    </message>
    <message>
        <source>not shaded</source>
        <translation>not shaded</translation>
    </message>
</context>
<context>
    <name>ShapeKind</name>
    <message>
        <source>circle</source>
        <translation>circle</translation>
    </message>
    <message>
        <source>strip</source>
        <translation>strip</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rectangle</translation>
    </message>
    <message>
        <source>square</source>
        <translation>square</translation>
    </message>
</context>
<context>
    <name>ShapesBoard</name>
    <message>
        <source>Colour the part of each shape that the question asks for.</source>
        <translation>Colour the part of each shape that the question asks for.</translation>
    </message>
    <message>
        <source>%1 of the %2 parts</source>
        <translation>%1 of the %2 parts</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Partitude needs a display and found none; without one, run it under Xvfb: %1
</source>
        <translation>Partitude needs a display and found none; without one, run it under Xvfb: %1
</translation>
    </message>
    <message>
        <source>Partitude did not reach its title screen.
</source>
        <translation>Partitude did not reach its title screen.
</translation>
    </message>
    <message>
        <source>Partitude reached its title screen (%1).
</source>
        <translation>Partitude reached its title screen (%1).
</translation>
    </message>
    <message>
        <source>Its sound module cannot be loaded: it will be silent.
</source>
        <translation>Its sound module cannot be loaded: it will be silent.
</translation>
    </message>
    <message>
        <source>Its sounds play through %1.
</source>
        <translation>Its sounds play through %1.
</translation>
    </message>
</context>
<context>
    <name>Titlefrm</name>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Made by the Partitude team</source>
        <translation>Made by the Partitude team</translation>
    </message>
    <message>
        <source>Go on to choose your year</source>
        <translation>Go on to choose your year</translation>
    </message>
    <message>
        <source>Close Partitude</source>
        <translation>Close Partitude</translation>
    </message>
    <message>
        <source>Partitude title picture</source>
        <translation>Partitude title picture</translation>
    </message>
</context>
<context>
    <name>TypedDecimal</name>
    <message>
        <source>Type a point for a decimal, not a comma.</source>
        <translation>Type a point for a decimal, not a comma.</translation>
    </message>
    <message>
        <source>Type only digits and a point.</source>
        <translation>Type only digits and a point.</translation>
    </message>
    <message>
        <source>Type a number in the box first!</source>
        <translation>Type a number in the box first!</translation>
    </message>
    <message>
        <source>A number has only one point.</source>
        <translation>A number has only one point.</translation>
    </message>
    <message>
        <source>That number is too long.</source>
        <translation>That number is too long.</translation>
    </message>
    <message>
        <source>Write the number without a 0 in front.</source>
        <translation>Write the number without a 0 in front.</translation>
    </message>
</context>
<context>
    <name>Welldone</name>
    <message>
        <source>Excellent!</source>
        <translation>Excellent!</translation>
    </message>
    <message>
        <source>Congratulations!!!</source>
        <translation>Congratulations!!!</translation>
    </message>
    <message>
        <source>you have completed the work successfully</source>
        <translation>you have completed the work successfully</translation>
    </message>
    <message>
        <source>you have risen to the Challenge</source>
        <translation>you have risen to the Challenge</translation>
    </message>
    <message>
        <source>en_GB</source>
        <extracomment>The locale whose month names and date order the certificate uses.</extracomment>
        <translation>en_GB</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>There was a problem printing to your printer.</source>
        <translation>There was a problem printing to your printer.</translation>
    </message>
    <message>
        <source>Excellent work you have completed this task successfully</source>
        <translation>Excellent work you have completed this task successfully</translation>
    </message>
    <message>
        <source>Enter your name in the box above before printing your certificate</source>
        <translation>Enter your name in the box above before printing your certificate</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Print Certificate</translation>
    </message>
    <message>
        <source>Well Done!</source>
        <translation>Well Done!</translation>
    </message>
    <message>
        <source>your name</source>
        <translation>your name</translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Goodbye</translation>
    </message>
    <message>
        <source>   Well Done      Well Done     Well Done     Well Done    </source>
        <translation>   Well Done      Well Done     Well Done     Well Done    </translation>
    </message>
    <message>
        <source>Congratulations!!! You have risen to the Challenge.</source>
        <translation>Congratulations!!! You have risen to the Challenge.</translation>
    </message>
    <message>
        <source>Printing has been cancelled.</source>
        <translation>Printing has been cancelled.</translation>
    </message>
    <message>
        <source>a picture to celebrate</source>
        <translation>a picture to celebrate</translation>
    </message>
</context>
<context>
    <name>WorksheetForm</name>
    <message>
        <source>Print a worksheet</source>
        <translation>Print a worksheet</translation>
    </message>
    <message>
        <source>the worksheet</source>
        <translation>the worksheet</translation>
    </message>
</context>
<context>
    <name>Worksheets</name>
    <message>
        <source>Do you really want to print?</source>
        <translation>Do you really want to print?</translation>
    </message>
    <message>
        <source>Printing has been cancelled.</source>
        <translation>Printing has been cancelled.</translation>
    </message>
    <message>
        <source>There was a problem printing to your printer.</source>
        <translation>There was a problem printing to your printer.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Partitude - fractions for ages 6 to 11</source>
        <translation>Partitude - fractions for ages 6 to 11</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Answers</translation>
    </message>
</context>
<context>
    <name>Y2fractions</name>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Click Start to have another go... or click Exit</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Good Luck.</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Aim to get 10 or 20 questions correct to gain a certificate.</translation>
    </message>
    <message>
        <source>You must choose some pictures!</source>
        <translation>You must choose some pictures!</translation>
    </message>
    <message>
        <source>You have not chosen enough!</source>
        <translation>You have not chosen enough!</translation>
    </message>
    <message>
        <source>You don&apos;t need a hint, you have the right answer!</source>
        <translation>You don&apos;t need a hint, you have the right answer!</translation>
    </message>
    <message>
        <source>You have chosen too many!</source>
        <translation>You have chosen too many!</translation>
    </message>
</context>
<context>
    <name>Y6fract3</name>
    <message>
        <source>Click the numbers, in order, starting with the smallest....</source>
        <translation>Click the numbers, in order, starting with the smallest....</translation>
    </message>
    <message>
        <source> The numbers are in the correct order</source>
        <translation> The numbers are in the correct order</translation>
    </message>
    <message>
        <source>Unlucky! The correct order is:</source>
        <translation>Unlucky! The correct order is:</translation>
    </message>
    <message>
        <source>Incorrect!</source>
        <translation>Incorrect!</translation>
    </message>
    <message>
        <source>Place In Order</source>
        <translation>Place In Order</translation>
    </message>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Click Start to have another go... or click Exit</translation>
    </message>
    <message>
        <source>Click each number starting with the smallest.</source>
        <translation>Click each number starting with the smallest.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Smallest</translation>
    </message>
    <message>
        <source>Biggest</source>
        <translation>Biggest</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Good Luck.</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certificate.</source>
        <translation>Aim to get 10 or 20 questions correct to gain a certificate.</translation>
    </message>
</context>
<context>
    <name>Year</name>
    <message>
        <source>Year 5</source>
        <translation>Year 5</translation>
    </message>
    <message>
        <source>Year 2</source>
        <translation>Year 2</translation>
    </message>
    <message>
        <source>Unit 1</source>
        <translation>Unit 1</translation>
    </message>
    <message>
        <source>Year 3</source>
        <translation>Year 3</translation>
    </message>
    <message>
        <source>Unit 2</source>
        <translation>Unit 2</translation>
    </message>
    <message>
        <source>Year 4</source>
        <translation>Year 4</translation>
    </message>
    <message>
        <source>Unit 3</source>
        <translation>Unit 3</translation>
    </message>
    <message>
        <source>Unit 4</source>
        <translation>Unit 4</translation>
    </message>
    <message>
        <source>Year 6</source>
        <translation>Year 6</translation>
    </message>
    <message>
        <source>Unit 5</source>
        <translation>Unit 5</translation>
    </message>
    <message>
        <source>Fractions made friendly</source>
        <translation>Fractions made friendly</translation>
    </message>
    <message>
        <source>Visit our web site</source>
        <translation>Visit our web site</translation>
    </message>
    <message>
        <source>Back to the start</source>
        <translation>Back to the start</translation>
    </message>
    <message>
        <source>Go back to the first screen</source>
        <translation>Go back to the first screen</translation>
    </message>
    <message>
        <source>  Play Sound</source>
        <translation>  Play Sound</translation>
    </message>
    <message>
        <source>Unit  %1</source>
        <translation>Unit  %1</translation>
    </message>
    <message>
        <source>Open the activities of %1</source>
        <translation>Open the activities of %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>orderhelp</name>
    <message>
        <source>Reading from the left :</source>
        <translation>Reading from the left :</translation>
    </message>
    <message>
        <source>%1 is less than %2</source>
        <translation>%1 is less than %2</translation>
    </message>
    <message>
        <source>since the %1 is less than the %2</source>
        <translation>since the %1 is less than the %2</translation>
    </message>
    <message>
        <source>%1 is the biggest</source>
        <translation>%1 is the biggest</translation>
    </message>
    <message>
        <source>since %1 units is bigger than %2 units</source>
        <translation>since %1 units is bigger than %2 units</translation>
    </message>
    <message>
        <source>Happy to help</source>
        <translation>Happy to help</translation>
    </message>
    <message>
        <source>The following decimals are in order of size starting with the smallest:</source>
        <translation>The following decimals are in order of size starting with the smallest:</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Year 6 </source>
        <translation>Year 6 </translation>
    </message>
    <message>
        <source>Goodbye</source>
        <translation>Goodbye</translation>
    </message>
</context>
<context>
    <name>y5fract4</name>
    <message>
        <source>Change to a mixed number...</source>
        <translation>Change to a mixed number...</translation>
    </message>
    <message>
        <source>Type in the correct mixed number and use the ENTER key to move on</source>
        <translation>Type in the correct mixed number and use the ENTER key to move on</translation>
    </message>
    <message>
        <source>Change to an improper fraction...</source>
        <translation>Change to an improper fraction...</translation>
    </message>
    <message>
        <source>Type in the correct fraction and use the ENTER key to move on</source>
        <translation>Type in the correct fraction and use the ENTER key to move on</translation>
    </message>
    <message>
        <source>Incorrect! %1</source>
        <translation>Incorrect! %1</translation>
    </message>
    <message>
        <source>Aim to get 10 or 20 questions correct to gain a certifcate.</source>
        <translation>Aim to get 10 or 20 questions correct to gain a certifcate.</translation>
    </message>
    <message>
        <source>Good Luck.</source>
        <translation>Good Luck.</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>whole number</translation>
    </message>
    <message>
        <source>top number</source>
        <translation>top number</translation>
    </message>
    <message>
        <source>bottom number</source>
        <translation>bottom number</translation>
    </message>
    <message>
        <source>Type in your mixed number and use the ENTER key to move on</source>
        <translation>Type in your mixed number and use the ENTER key to move on</translation>
    </message>
    <message>
        <source>Click Start to have another go... or click Exit</source>
        <translation>Click Start to have another go... or click Exit</translation>
    </message>
    <message>
        <source>%1 equals</source>
        <translation>%1 equals</translation>
    </message>
    <message>
        <source>%1 and %2 equals</source>
        <translation>%1 and %2 equals</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 times %2 is %3</source>
        <translation>%1 times %2 is %3</translation>
    </message>
</context>
<context>
    <name>y5fract5</name>
    <message>
        <source>Answer each question.</source>
        <translation>Answer each question.</translation>
    </message>
</context>
</TS>
